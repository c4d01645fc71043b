#include "tool/command_line.h"

#include <CLI/CLI.hpp>

#include <ostream>

#include "base/error_words.h"
#include "tool/command_table.h"
#include "tool/manual.h"
#include "tool/nearest.h"
#include "tool/standard_input.h"

namespace varno::tool {

namespace {

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

std::string footerOf(const CommandRow& row) {
    std::string text = row.remark;
    text += text.empty() ? "Exempel:" : "\n\nExempel:";
    for (const Example& example : row.examples)
        text += std::string("\n  ") + example.line + "\n      " + example.does;
    return text + "\n";
}

std::string footerOfAll() {
    std::string text = std::string(standardInputRemark) + "\n\nSlutkoder:";
    for (std::size_t code = 0; code < exitCodeTexts.size(); ++code)
        text += "\n  " + std::to_string(code) + "  " + exitCodeTexts[code];
    return text + "\n  " + std::to_string(interrupted) + "  " + interruptedText + "\n";
}

CLI::Option* addParameter(CLI::App& command, const Parameter& parameter, Request& request) {
    return std::visit(
        [&](auto member) {
            auto& target = request.*member;
            if constexpr (std::is_same_v<decltype(member), bool Request::*>)
                return command.add_flag(parameter.name, target, parameter.description);
            else
                return command.add_option(parameter.name, target, parameter.description)
                    ->type_name(parameter.value);
        },
        parameter.stored);
}

// What the user asks for goes to `request` and `chosen`.
void addCommand(CLI::App& app, const CommandRow& row, Request& request, const CommandRow*& chosen) {
    CLI::App& command = *app.add_subcommand(row.name, row.description)->group("Kommandon");
    speakSwedish(command);
    command.footer(footerOf(row));
    for (const Parameter& parameter : row.parameters) {
        CLI::Option* const option = addParameter(command, parameter, request);
        if (parameter.required) option->required();
        if (parameter.isOption()) option->group("Val");
    }
    command.callback([&row, &chosen] { chosen = &row; });
}

std::string missing(const CLI::App& command) {
    for (const CLI::Option* option : command.get_options()) {
        if (option->get_required() && option->count() == 0)
            return (option->get_positional() ? "argumentet " : "valet ") + option->get_name() + " saknas.";
    }
    return "ett argument saknas.";
}

// What is wrong, by the library's kind of error: its own words are English.
std::string complaintOf(const CLI::ParseError& error, const CLI::App& app) {
    const auto chosen = app.get_subcommands();
    const std::vector<std::string> rest = app.remaining(true);
    if (chosen.empty()) {
        if (rest.empty()) return "ett kommando saknas.";
        if (rest.front().starts_with('-')) return "valet \"" + rest.front() + "\" finns inte.";
        std::vector<std::string> names;
        for (const CommandRow& row : commandTable())
            names.emplace_back(row.name);
        return "kommandot \"" + rest.front() + "\" finns inte" + suggestion(rest.front(), names);
    }
    if (!rest.empty() && dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        std::vector<std::string> names;
        for (const CLI::Option* option : chosen.front()->get_options())
            names.push_back(option->get_name());
        return "argumentet \"" + rest.front() + "\" är ett för mycket eller okänt" +
               (rest.front().starts_with('-') ? suggestion(rest.front(), names) : ".");
    }
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return missing(*chosen.front());
    for (const CLI::Option* option : chosen.front()->get_options()) {
        if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr &&
            std::string_view(error.what()).find(option->get_name()) != std::string_view::npos)
            return "valet " + option->get_name() + " väntar ett tal.";
    }
    // "--svg: 1 required UT missing"
    const std::string what = error.what();
    return "valet " + what.substr(0, what.find(':')) + " väntar ett värde.";
}

int tellUsage(const std::string& complaint, const CLI::App& app, std::ostream& err) {
    const auto chosen = app.get_subcommands();
    err << "Fel användning: " << (chosen.empty() ? "" : "varnotool " + chosen.front()->get_name() + ": ")
        << complaint << "\n\n"
        << app.help();
    return wrongUsage;
}

// An option that prints a text and nothing else.
void addPrinting(CLI::App& app, const char* name, const char* description, std::string (*text)()) {
    app.add_flag_callback(
           name, [text] { throw CLI::CallForVersion(text(), 0); }, description)
        ->group("Val");
}

int runCommand(const CommandRow& command, const Request& request, const Machine& machine) {
    WithStandardInput calls(machine.files, machine.in);
    ConsoleBoxes boxes(machine.err);
    FileOpener opener(calls, boxes);
    return command.run({opener, machine.out, machine.err, machine.engines, machine.terminal}, request);
}

} // namespace

int runTool(const std::vector<std::string>& arguments, const Machine& machine) {
    CLI::App app(toolDescription, "varnotool");
    speakSwedish(app);
    addPrinting(app, "--version", "Visar versionen",
                [] { return std::string("varnotool " VARNO_VERSION "\n"); });
    addPrinting(app, "--manual", "Skriver manualsidan för man", manualPage);
    addPrinting(app, "--bash-completion", "Skriver kompletteringen för bash", bashCompletion);
    app.footer(footerOfAll());
    app.require_subcommand(1);
    Request request;
    const CommandRow* chosen = nullptr;
    for (const CommandRow& row : commandTable())
        addCommand(app, row, request, chosen);
    try {
        // The library takes the arguments from the back.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        if (chosen->complaint != nullptr) {
            const std::string complaint = chosen->complaint(request);
            if (!complaint.empty()) return tellUsage(complaint, app, machine.err);
        }
        return runCommand(*chosen, request, machine);
    } catch (const CLI::CallForHelp&) {
        machine.out << app.help();
        return done;
    } catch (const CLI::CallForVersion& version) {
        machine.out << version.what();
        return done;
    } catch (const CLI::ParseError& error) {
        return tellUsage(complaintOf(error, app), app, machine.err);
    } catch (const UsageError& error) {
        return tellUsage(error.what(), app, machine.err);
    } catch (const InputError& error) {
        machine.err << error.what() << '\n';
        return runTimeError;
    } catch (const RunTimeError& error) {
        return tellRunTimeError(error, machine.err);
    }
}

int tellRunTimeError(const RunTimeError& error, std::ostream& err) {
    ErrorSubject subject = error.subject();
    if (subject.file == "-") subject.file = "på standard in";
    const ErrorWords words = errorWords(error.number(), subject);
    err << words.happened << '\n';
    if (!words.advice.empty()) err << words.advice << '\n';
    err << "run-time error " << error.number() << ": " << error.text() << '\n';
    return runTimeError;
}

} // namespace varno::tool
