#include <algorithm>
#include <cmath>
#include <ostream>

#include "base/text.h"
#include "results/result_text.h"
#include "tool/commands.h"
#include "tool/html_report.h"

namespace varno::tool {

namespace {

// The engine leaves its files in the folder that it runs in, which is that of the case.
std::string beside(const std::string& path, const std::string& name) {
    const auto slash = path.find_last_of("/\\");
    return slash == std::string::npos ? name : path.substr(0, slash + 1) + name;
}

// The points of a span end at its right support; another length is that of another case.
bool fits(const DesignCase& c, const CurveValues& values) {
    if (values.spans() != c.nfack) return false;
    for (int span = 1; span <= c.nfack; ++span) {
        const SpanMoments& moments = values.curves[0][static_cast<std::size_t>(span - 1)];
        if (std::abs(pointPlace(c, span, moments, lastMoment) - c.spv(span)) > 0.01) return false;
    }
    return true;
}

class Collector {
  public:
    Collector(FileOpener& opener, const Request& request)
        : opener_(opener), request_(request), content_{.caseFile = loadCase(opener, request.file)} {}

    ReportContent content() {
        collectMoments();
        collectResult();
        return std::move(content_);
    }

  private:
    // The file that was named, or the one beside the case when there is one.
    std::string fileFor(const std::string& named, const std::string& name, const std::string& what) {
        std::string path = named.empty() ? beside(request_.file, name) : named;
        FileCalls& calls = opener_.calls();
        if (!calls.exists(path)) {
            // Opening one that was named says what is wrong with it.
            if (!named.empty()) return path;
            note(what + " saknas: " + path + " finns inte.");
            return {};
        }
        if (request_.file != "-" && calls.lastWritten(path) < calls.lastWritten(request_.file))
            note(what + " är äldre än indata (" + path + ").");
        return path;
    }
    void note(const std::string& text) { content_.notes.push_back(text); }

    void collectMoments() {
        const std::string path = fileFor(request_.moments, momentFileName, "Momentdiagrammet");
        if (path.empty()) return;
        File file = opener_.openFile(path, FileMode::input);
        CurveValues values = readCurveValues(file);
        if (fits(content_.caseFile.designCase, values))
            content_.moments = std::move(values);
        else
            note("Momentdiagrammet saknas: kurvorna i " + path + " hör till andra fack än fallets.");
    }

    void collectResult() {
        const std::string path = fileFor(request_.result, content_.caseFile.name + ".res", "Resultatet");
        if (path.empty()) return;
        File file = opener_.openFile(path, FileMode::input);
        for (const Bytes& page : VARNO1::readResultPages(file)) {
            std::string text = decodeWindows1252(page);
            std::erase(text, '\r');
            // The line that ends a page.
            if (text.ends_with("\n^")) text.erase(text.size() - 2);
            content_.resultPages.push_back(text);
        }
    }

    FileOpener& opener_;
    const Request& request_;
    ReportContent content_;
};

} // namespace

ExitCode printHtmlReport(const Session& session, const Request& request) {
    const std::string page = htmlReport(Collector(session.opener, request).content());
    if (request.target.empty())
        session.out << page;
    else
        writeLines(session.opener, request.target, page);
    return done;
}

} // namespace varno::tool
