#include "tool/command_line.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <ostream>

#include "tool/commands.h"

namespace varno::tool {

namespace {

enum ExitCode { done = 0, runTimeError = 1, wrongUsage = 2 };

struct Request {
    std::string file;
    std::string target;
    std::function<void(FileOpener&, std::ostream&)> run;
};

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

CLI::App* addCommand(CLI::App& app, const char* name, const char* description) {
    CLI::App* command = app.add_subcommand(name, description);
    command->group("Kommandon");
    speakSwedish(*command);
    return command;
}

void addPath(CLI::App& command, const char* name, std::string& path, const char* description) {
    command.add_option(name, path, description)->required()->type_name("");
}

void addFileCommand(CLI::App& app, Request& request, const char* name, const char* description,
                    void (*action)(FileOpener&, const std::string&, std::ostream&)) {
    CLI::App* command = addCommand(app, name, description);
    addPath(*command, "FIL", request.file, "Filen som läses");
    command->callback([&request, action] {
        request.run = [&request, action](FileOpener& opener, std::ostream& out) {
            action(opener, request.file, out);
        };
    });
}

void addCommands(CLI::App& app, Request& request) {
    speakSwedish(app);
    app.require_subcommand(1);
    addFileCommand(app, request, "json", "Skriver en indatafil som JSON", printJson);
    CLI::App* rewrite = addCommand(app, "rewrite", "Läser en indatafil och skriver den igen");
    addPath(*rewrite, "IN", request.file, "Filen som läses");
    addPath(*rewrite, "UT", request.target, "Filen som skrivs, gärna samma");
    rewrite->callback([&request] {
        request.run = [&request](FileOpener& opener, std::ostream&) {
            rewriteCase(opener, request.file, request.target);
        };
    });
    addFileCommand(app, request, "result", "Skriver texten i en resultatfil", printResult);
    addFileCommand(app, request, "show", "Visar indata i läsbar form", printReport);
}

} // namespace

int runTool(const std::vector<std::string>& arguments, FileCalls& calls, std::ostream& out,
            std::ostream& err) {
    CLI::App app("Läser och skriver filerna till Varno. All text är UTF-8.", "varnotool");
    Request request;
    addCommands(app, request);
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
        request.run(opener, out);
        return done;
    } catch (const RunTimeError& error) {
        return tellRunTimeError(error, err);
    }
}

int tellRunTimeError(const RunTimeError& error, std::ostream& err) {
    err << "run-time error " << error.number() << ": " << error.text() << '\n';
    return runTimeError;
}

} // namespace varno::tool
