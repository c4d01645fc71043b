#include <algorithm>
#include <string>
#include <vector>

#include "base/text.h"
#include "tool/case_sheet.h"
#include "tool/commands.h"

namespace varno::tool {

namespace {

class Report {
  public:
    explicit Report(const CaseFile& loaded) {
        const std::string name = loaded.name + ".IND";
        text_ += name + "\n" + std::string(characterCount(name), '=') + "\n" +
                 withoutTrailingBlanks(loaded.title) + "\n";
    }
    void heading(const std::string& caption) { text_ += "\n" + caption + "\n"; }

    /// "caption   value", the values of a section under each other.
    void add(const SheetLine& row) {
        constexpr std::size_t captionWidth = 30;
        const std::size_t width = characterCount(row.caption);
        line(row.caption + std::string(width < captionWidth ? captionWidth - width : 1, ' ') + row.value);
    }
    /// Columns as wide as their widest cell, right-aligned, two blanks between them.
    void add(const SheetTable& table) {
        std::vector<std::size_t> widths(table.front().size());
        for (const auto& row : table) {
            for (std::size_t column = 0; column < row.size(); ++column)
                widths[column] = std::max(widths[column], characterCount(row[column]));
        }
        for (const auto& row : table) {
            std::string cells;
            for (std::size_t column = 0; column < row.size(); ++column)
                cells += std::string(column == 0 ? 0 : 2, ' ') +
                         std::string(widths[column] - characterCount(row[column]), ' ') + row[column];
            line(cells);
        }
    }
    const std::string& text() const { return text_; }

  private:
    void line(const std::string& text) { text_ += withoutTrailingBlanks("  " + text) + "\n"; }

    std::string text_;
};

} // namespace

std::string caseReport(const CaseFile& loaded) {
    Report report(loaded);
    for (const SheetSection& section : caseSheet(loaded.designCase)) {
        report.heading(section.heading);
        for (const auto& part : section.parts)
            std::visit([&](const auto& one) { report.add(one); }, part);
    }
    return report.text();
}

} // namespace varno::tool
