#include "diagram/moment_file.h"

#include "base/numbers.h"
#include "model/design_case.h"

namespace varno {

MomentFile::MomentFile(File& file) : file_(file), spans_(0) {
    aboutFile(file.path(), FileAction::reading, [&] {
        spans_ = toInteger(VARNO1::parseNumber(file.readField()));
        if (spans_ > SpanArray::last) throw RunTimeError(errSubscriptOutOfRange);
    });
}

float MomentFile::number() {
    return aboutFile(file_.path(), FileAction::reading,
                     [&] { return toSingle(VARNO1::parseNumber(file_.readField())); });
}

} // namespace varno
