#include <algorithm>
#include <ostream>

#include "tool/case_inputs.h"
#include "tool/commands.h"

namespace varno::tool {

namespace {

constexpr const char* none = "saknas";

const Input* find(const std::vector<Input>& inputs, CasePlace place) {
    const auto found = std::ranges::find(inputs, place, &Input::place);
    return found == inputs.end() ? nullptr : &*found;
}

// Those of both cases, in the order of the file.
std::vector<CasePlace> placesOf(const std::vector<Input>& one, const std::vector<Input>& two) {
    std::vector<CasePlace> places;
    for (const auto* inputs : {&one, &two}) {
        for (const Input& input : *inputs)
            places.push_back(input.place);
    }
    const auto order = [](CasePlace a, CasePlace b) {
        return a.line != b.line ? a.line < b.line : a.cell < b.cell;
    };
    std::ranges::stable_sort(places, order);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

} // namespace

ExitCode compareCases(const Session& session, const Request& request) {
    const std::vector<Input> one = inputsOf(loadCase(session.opener, request.file));
    if (request.other.empty()) {
        for (const Input& input : one)
            session.out << input.name << ": " << input.value << '\n';
        return done;
    }
    const std::vector<Input> two = inputsOf(loadCase(session.opener, request.other));
    ExitCode code = done;
    for (const CasePlace place : placesOf(one, two)) {
        const Input* const before = find(one, place);
        const Input* const after = find(two, place);
        if (before && after && before->value == after->value) continue;
        session.out << (after ? after : before)->name << ": " << (before ? before->value : none) << " -> "
                    << (after ? after->value : none) << '\n';
        code = found;
    }
    return code;
}

} // namespace varno::tool
