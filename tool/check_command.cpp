#include <algorithm>
#include <ostream>
#include <vector>

#include "base/error_words.h"
#include "input/sketch_picture.h"
#include "model/plausibility.h"
#include "model/reference_tables.h"
#include "shell/case_messages.h"
#include "tool/commands.h"
#include "tool/json_text.h"

namespace varno::tool {

namespace {

// One line of the check. Of the numbers those that the kind has are not 0.
struct Remark {
    std::string file;
    const char* kind;
    std::string text;
    int line = 0;           ///< of the file
    std::string rule = {};  ///< of a plausibility rule
    std::string field = {}; ///< of the record
    int index = 0;
};

class FileCheck {
  public:
    FileCheck(FileCalls& calls, const DesignCase& presets, const std::string& path)
        : calls_(calls), presets_(presets), path_(path) {}

    std::vector<Remark> remarks() {
        try {
            lookAtBytes(calls_.readAll(path_));
        } catch (const RunTimeError& error) {
            add(unreadable, wordsOf(error.about(path_, FileAction::reading)));
        }
        return std::move(remarks_);
    }

    static constexpr const char* unreadable = "unreadable";

  private:
    void add(const char* kind, std::string text, int line = 0) {
        std::ranges::replace(text, '\n', ' ');
        remarks_.push_back({.file = path_, .kind = kind, .text = text, .line = line});
    }

    static std::string wordsOf(const RunTimeError& error) {
        return errorWords(error.number(), error.subject()).happened;
    }

    void lookAtBytes(const Bytes& bytes) {
        for (const FileFault& fault : checkFile(bytes))
            add("file", fileFaultText(fault), fault.place.line);
        const CaseFile loaded = VARNO1::readDesignCase(SequentialText(bytes), presets_);
        lookAtSaving(loaded);
        lookAtSketch(loaded.designCase);
        for (const Finding& finding : implausible(loaded.designCase)) {
            add("plausibility", finding.text);
            remarks_.back().rule = nameOf(finding.kind);
            remarks_.back().field = finding.field;
            remarks_.back().index = finding.index;
        }
    }

    // What would be told after saving the case that was read.
    void lookAtSaving(const CaseFile& loaded) {
        const SavedCheck check = checkSaved(loaded, VARNO1::writtenDesignCase(loaded));
        for (const LostValue& lost : check.lost)
            add("loss", "När fallet sparas: " + lostValueText(lost) + ".", lost.place.line);
    }

    void lookAtSketch(const DesignCase& designCase) {
        SketchPicture picture;
        try {
            SlabSketch(designCase, picture.loadPicture, picture.slabStrip, picture).fullRefresh();
        } catch (const RunTimeError& error) {
            add("sketch", "Skissen kan inte ritas: " + wordsOf(error));
        }
    }

    FileCalls& calls_;
    const DesignCase& presets_;
    const std::string& path_;
    std::vector<Remark> remarks_;
};

std::string objectOf(const Remark& remark) {
    std::string text =
        "{\"file\": " + jsonOf(remark.file) + ", \"kind\": " + jsonOf(std::string(remark.kind));
    if (remark.line != 0) text += ", \"line\": " + jsonOf(remark.line);
    if (!remark.rule.empty()) {
        text += ", \"rule\": " + jsonOf(remark.rule) + ", \"field\": " + jsonOf(remark.field);
        if (remark.index != 0) text += ", \"index\": " + jsonOf(remark.index);
    }
    return text + ", \"text\": " + jsonOf(remark.text) + "}";
}

} // namespace

ExitCode checkCases(const Session& session, const Request& request) {
    ExitCode code = done;
    std::string array;
    DesignCase presets;
    presetDesignCase(presets);
    for (const std::string& path : request.files) {
        for (const Remark& remark : FileCheck(session.opener.calls(), presets, path).remarks()) {
            if (request.json)
                array += (array.empty() ? "\n  " : ",\n  ") + objectOf(remark);
            else
                session.out << remark.file << ": " << remark.text << '\n';
            if (remark.kind == FileCheck::unreadable)
                code = runTimeError;
            else if (code == done)
                code = found;
        }
    }
    if (request.json) session.out << "[" << array << (array.empty() ? "]\n" : "\n]\n");
    return code;
}

} // namespace varno::tool
