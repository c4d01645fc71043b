#include "tool/command_line.h"

#include <CLI/CLI.hpp>

#include <ostream>

#include "base/error_words.h"
#include "tool/commands.h"

namespace varno::tool {

namespace {

enum ExitCode { done = 0, runTimeError = 1, wrongUsage = 2 };

struct Argument {
    const char* name;
    std::string Request::*path;
    const char* description;
};

struct CommandRow {
    const char* name;
    const char* description;
    std::vector<Argument> arguments;
    Command* run;
    bool draws = false; ///< a picture is either listed or drawn into a file
};

std::vector<CommandRow> commandTable() {
    const Argument file{"FIL", &Request::file, "Filen som läses"};
    return {
        {"json", "Skriver en indatafil som JSON", {file}, printJson},
        {"rewrite",
         "Läser en indatafil och skriver den igen",
         {{"IN", &Request::file, "Filen som läses"},
          {"UT", &Request::target, "Filen som skrivs, gärna samma"}},
         rewriteCase},
        {"result", "Skriver texten i en resultatfil", {file}, printResult},
        {"pages", "Skriver utskriftens sidor som JSON", {file}, printPages},
        {"show", "Visar indata i läsbar form", {file}, printReport},
        {"sketch", "Ritar skissen till en indatafil", {file}, drawSketch, true},
        {"diagram",
         "Ritar momentdiagrammet till en indatafil",
         {{"FIL", &Request::file, "Indatafilen"}, {"MOMK", &Request::moments, "Filen med momentkurvorna"}},
         drawDiagram,
         true},
    };
}

void speakSwedish(CLI::App& app) {
    app.set_help_flag("-h,--help", "Visar den här hjälpen");
    const auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Användning");
    formatter->label("OPTIONS", "VAL");
    formatter->label("SUBCOMMAND", "KOMMANDO");
    formatter->label("Positionals", "Argument");
    formatter->label("REQUIRED", "");
    app.formatter(formatter);
    app.get_option("--help")->group("Val");
    // "/" begins a path on every system.
    app.allow_windows_style_options(false);
}

// What the user asks for goes to `request` and `run`.
void addCommand(CLI::App& app, const CommandRow& row, Request& request, Command*& run) {
    CLI::App& command = *app.add_subcommand(row.name, row.description)->group("Kommandon");
    speakSwedish(command);
    for (const Argument& argument : row.arguments)
        command.add_option(argument.name, request.*argument.path, argument.description)
            ->required()
            ->type_name("");
    if (row.draws) {
        const std::string list = "Skriver det som ritas, ett JSON-objekt per rad";
        command.add_flag("--list", list)->group("Val");
        command.add_option("--svg", request.target, "Ritar till en SVG-fil")->type_name("UT")->group("Val");
    }
    command.callback([&row, &command, &request, &run] {
        request.list = row.draws && command.count("--list") != 0;
        if (row.draws && request.list == (command.count("--svg") != 0))
            throw CLI::RequiredError("--list | --svg");
        run = row.run;
    });
}

} // namespace

int runTool(const std::vector<std::string>& arguments, FileCalls& calls, std::ostream& out,
            std::ostream& err) {
    CLI::App app("Läser och skriver filerna till Varno. All text är UTF-8.", "varnotool");
    speakSwedish(app);
    app.require_subcommand(1);
    const auto table = commandTable();
    Request request;
    Command* run = nullptr;
    for (const CommandRow& row : table)
        addCommand(app, row, request, run);
    try {
        // The library takes the arguments from the back.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        out << app.help();
        return done;
    } catch (const CLI::ParseError&) {
        err << "Fel användning.\n" << app.help();
        return wrongUsage;
    }
    try {
        ConsoleBoxes boxes(err);
        FileOpener opener(calls, boxes);
        run(opener, request, out);
        return done;
    } catch (const RunTimeError& error) {
        return tellRunTimeError(error, err);
    }
}

int tellRunTimeError(const RunTimeError& error, std::ostream& err) {
    const ErrorWords words = errorWords(error.number(), error.subject());
    err << words.happened << '\n';
    if (!words.advice.empty()) err << words.advice << '\n';
    err << "run-time error " << error.number() << ": " << error.text() << '\n';
    return runTimeError;
}

} // namespace varno::tool
