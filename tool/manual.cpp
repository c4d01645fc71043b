#include "tool/manual.h"

#include "tool/command_table.h"

namespace varno::tool {

namespace {

// A hyphen that is to be copied, and what troff would take for its own.
std::string roff(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '\\')
            out += "\\e";
        else if (c == '-')
            out += "\\-";
        else
            out += c;
    }
    return out.starts_with('.') || out.starts_with('\'') ? "\\&" + out : out;
}

std::string bold(std::string_view text) {
    return "\\fB" + roff(text) + "\\fR";
}
std::string italic(std::string_view text) {
    return "\\fI" + roff(text) + "\\fR";
}

std::string nameOf(const Parameter& parameter) {
    if (!parameter.isOption()) return italic(parameter.name);
    return bold(parameter.name) + (*parameter.value == '\0' ? "" : " " + italic(parameter.value));
}

bool takesMany(const Parameter& parameter) {
    return std::holds_alternative<std::vector<std::string> Request::*>(parameter.stored);
}

std::string usageOf(const CommandRow& command) {
    std::string text = bold("varnotool") + " " + bold(command.name);
    for (const Parameter& parameter : command.parameters) {
        const std::string one = nameOf(parameter) + (takesMany(parameter) ? "..." : "");
        text += " " + (parameter.required ? one : "[" + one + "]");
    }
    return text;
}

std::string tagged(const std::string& tag, std::string_view text) {
    return ".TP\n" + tag + "\n" + roff(text) + "\n";
}

std::string sectionOf(const CommandRow& command) {
    std::string text =
        ".SS " + roff(command.name) + "\n" + usageOf(command) + "\n.PP\n" + roff(command.description) + ".\n";
    if (*command.remark != '\0') text += roff(command.remark) + "\n";
    for (const Parameter& parameter : command.parameters)
        text += tagged(nameOf(parameter), parameter.description);
    return text;
}

std::string examplesOf(const CommandRow& command) {
    std::string text;
    for (const Example& example : command.examples)
        text += tagged(bold(example.line), example.does);
    return text;
}

// What bash offers behind an option.
enum class Offers { files, folders, nothing };

Offers offersOf(const Parameter& parameter) {
    if (!std::holds_alternative<std::string Request::*>(parameter.stored)) return Offers::nothing;
    const std::string_view value = parameter.value;
    if (value == "MAPP") return Offers::folders;
    return Offers::files;
}

std::string namesOf(const CommandRow& command, auto wanted) {
    std::string names;
    for (const Parameter& parameter : command.parameters) {
        if (parameter.isOption() && wanted(parameter))
            names += (names.empty() ? "" : " ") + std::string(parameter.name);
    }
    return names;
}

std::string caseOf(const CommandRow& command) {
    const auto offering = [&](Offers offers) {
        return namesOf(command, [&](const Parameter& parameter) {
            return *parameter.value != '\0' && offersOf(parameter) == offers;
        });
    };
    const std::string all = namesOf(command, [](const Parameter&) { return true; });
    return std::string("    ") + command.name + ") options='" + all + (all.empty() ? "" : " ") +
           "--help' folders='" + offering(Offers::folders) + "' numbers='" + offering(Offers::nothing) +
           "' ;;\n";
}

} // namespace

std::string manualPage() {
    std::string text =
        ".TH VARNOTOOL 1 \"\" \"varnotool " VARNO_VERSION "\" \"Varno\"\n.nh\n.ad l\n.SH NAMN\n";
    text += "varnotool \\- " + roff("läser, kontrollerar, beräknar och skriver filerna till Varno") + "\n";
    text += ".SH ÖVERSIKT\n" + bold("varnotool") + " " + italic("KOMMANDO") + " [" + italic("VAL") + "] " +
            italic("FIL") + "...\n";
    text += ".SH BESKRIVNING\n" + roff(toolDescription) + "\n" + roff(standardInputRemark) + "\n";
    text += ".SH KOMMANDON\n";
    for (const CommandRow& command : commandTable())
        text += sectionOf(command);
    text += ".SH SLUTKODER\n";
    for (std::size_t code = 0; code < exitCodeTexts.size(); ++code)
        text += tagged(bold(std::to_string(code)), exitCodeTexts[code]);
    text += tagged(bold(std::to_string(interrupted)), interruptedText);
    text += ".SH EXEMPEL\n";
    for (const CommandRow& command : commandTable())
        text += examplesOf(command);
    return text;
}

std::string bashCompletion() {
    std::string commands;
    std::string cases;
    for (const CommandRow& command : commandTable()) {
        commands += std::string(command.name) + " ";
        cases += caseOf(command);
    }
    return R"(# bash completion for varnotool
_varnotool() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} options='' folders='' numbers=''
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W ')" +
           commands + R"(--help --version' -- "$cur")
        return
    fi
    case ${COMP_WORDS[1]} in
)" + cases +
           R"(    *) return ;;
    esac
    if [[ " $folders " == *" $prev "* ]]; then
        mapfile -t COMPREPLY < <(compgen -d -- "$cur")
        compopt -o filenames 2>/dev/null
    elif [[ " $numbers " == *" $prev "* ]]; then
        compopt +o default 2>/dev/null
    elif [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
    fi
    # Otherwise nothing is offered here, and bash offers file names.
}
complete -o default -F _varnotool varnotool
)";
}

} // namespace varno::tool
