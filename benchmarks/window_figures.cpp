#include "window_figures.h"

#include "driver/scene.h"

namespace varno::benchmarks {

namespace {

// A measurement's name is its run's name with what is counted behind it: the time on the clock.
std::string entry(const std::string& name, double milliseconds, const std::string& more = "") {
    return "{\"run_name\": \"" + name + "/real_time\", \"run_type\": \"iteration\", \"time_unit\": \"ms\", " +
           "\"real_time\": " + std::to_string(milliseconds) + more + "}";
}

} // namespace

void WindowFigures::save(const std::string& path) const {
    std::string text;
    const auto add = [&](const std::string& one) { text += (text.empty() ? "" : ",\n") + one; };
    for (const auto& [name, all] : times_) {
        for (const double time : all)
            add(entry(name, time));
    }
    for (const auto& [name, all] : bytes_) {
        for (const std::size_t bytes : all)
            add(entry(name, 0, ", \"bytes\": " + std::to_string(bytes)));
    }
    gui::writeFile(path, "{\"benchmarks\": [\n" + text + "\n]}\n");
}

} // namespace varno::benchmarks
