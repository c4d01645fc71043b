#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "tool/commands.h"

// What varnotool can do, said once: the command line, its help, the manual page and the shell's completion come from it.

namespace varno::tool {

using Stored = std::variant<std::string Request::*, std::vector<std::string> Request::*, bool Request::*,
                            int Request::*, double Request::*>;

/// An argument, or an option when its name begins with a hyphen. Texts are Swedish.
struct Parameter {
    const char* name;
    Stored stored;
    const char* description;
    const char* value = ""; ///< what stands for the value of an option; a switch has none
    bool required = false;

    bool isOption() const { return *name == '-'; }
};

struct Example {
    const char* line;
    const char* does;
};

struct CommandRow {
    const char* name;
    const char* description;
    Command* run;
    std::vector<Parameter> parameters;
    std::vector<Example> examples;
    const char* remark = ""; ///< what one might not expect
    /// Says what is wrong with arguments that are each right, for example "ange antingen --list eller --svg UT."; empty
    /// when nothing is.
    std::string (*complaint)(const Request&) = nullptr;
};

const std::vector<CommandRow>& commandTable();

inline constexpr const char* toolDescription =
    "Läser, kontrollerar och skriver filerna till Varno. All text är UTF-8.";
inline constexpr const char* standardInputRemark = "En fil som heter - är det som kommer på standard in.";
/// Of the exit codes, from 0.
inline constexpr std::array exitCodeTexts{
    "klart",
    "ett fel, som står på felutmatningen",
    "fel användning",
    "klart, men det finns något att se efter: kontrollen fann något, fallen skiljer sig åt eller en "
    "beräkning "
    "misslyckades",
};
inline constexpr const char* interruptedText = "avbrutet med Ctrl+C";

} // namespace varno::tool
