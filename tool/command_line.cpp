#include "tool/command_line.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <ostream>

#include "base/error_words.h"
#include "tool/commands.h"
#include "tool/drawing_commands.h"

namespace varno::tool {

namespace {

enum ExitCode { done = 0, runTimeError = 1, wrongUsage = 2 };

struct Request {
    std::string file;
    std::string moments;
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

using Action = std::function<void(FileOpener&, std::ostream&)>;

// A picture is either listed or drawn into a file.
void addPictureOptions(CLI::App& command, Request& request, const Action& list, const Action& draw) {
    const std::string listDescription = "Skriver det som ritas, ett JSON-objekt per rad";
    const CLI::Option* listed = command.add_flag("--list", listDescription)->group("Val");
    const CLI::Option* drawn =
        command.add_option("--svg", request.target, "Ritar till en SVG-fil")->type_name("UT")->group("Val");
    command.callback([listed, drawn, list, draw, &request] {
        if ((listed->count() != 0) == (drawn->count() != 0)) throw CLI::RequiredError("--list | --svg");
        request.run = listed->count() != 0 ? list : draw;
    });
}

void addSketch(CLI::App& app, Request& request) {
    CLI::App* sketch = addCommand(app, "sketch", "Ritar skissen till en indatafil");
    addPath(*sketch, "FIL", request.file, "Filen som läses");
    addPictureOptions(
        *sketch, request,
        [&request](FileOpener& opener, std::ostream& out) { listSketch(opener, request.file, out); },
        [&request](FileOpener& opener, std::ostream&) { drawSketch(opener, request.file, request.target); });
}

void addDiagram(CLI::App& app, Request& request) {
    CLI::App* diagram = addCommand(app, "diagram", "Ritar momentdiagrammet till en indatafil");
    addPath(*diagram, "FIL", request.file, "Indatafilen");
    addPath(*diagram, "MOMK", request.moments, "Filen med momentkurvorna");
    addPictureOptions(
        *diagram, request,
        [&request](FileOpener& opener, std::ostream& out) {
            listDiagram(opener, request.file, request.moments, out);
        },
        [&request](FileOpener& opener, std::ostream&) {
            drawDiagram(opener, request.file, request.moments, request.target);
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
    addFileCommand(app, request, "pages", "Skriver utskriftens sidor som JSON", printPages);
    addFileCommand(app, request, "show", "Visar indata i läsbar form", printReport);
    addSketch(app, request);
    addDiagram(app, request);
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
    const ErrorWords words = errorWords(error.number(), error.subject());
    err << words.happened << '\n';
    if (!words.advice.empty()) err << words.advice << '\n';
    err << "run-time error " << error.number() << ": " << error.text() << '\n';
    return runTimeError;
}

} // namespace varno::tool
