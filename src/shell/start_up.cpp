#include "shell/start_up.h"

#include <bit>
#include <cstdint>

#include "base/run_time_error.h"
#include "base/text.h"
#include "results/font_choice.h"

namespace varno {

namespace {

// varno.ver: bytes 0 to 3 are a little-endian single.
constexpr const char* noticeFile = "varno.ver";

float singleOf(const Bytes& bytes) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < sizeof bits; ++i) {
        bits |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    }
    return std::bit_cast<float>(bits);
}

Bytes bytesOf(float value) {
    const auto bits = std::bit_cast<std::uint32_t>(value);
    Bytes bytes;
    for (std::size_t i = 0; i < sizeof bits; ++i)
        bytes += static_cast<char>((bits >> (8 * i)) & 0xFF);
    return bytes;
}

} // namespace

void StartUp::readWorkFolder() {
    File file = files_.openFile("varno.ini", FileMode::input);
    settings_.workFolder = decodeWindows1252(VARNO1::fromOemLetters(file.readField()));
    file.close();
}

void StartUp::readNoticeVersion() {
    File file = files_.openFile(noticeFile, FileMode::binary);
    settings_.noticeVersion = singleOf(file.get(1, sizeof(float)));
    file.close();
}

void StartUp::storeNoticeVersion() {
    // In a folder that cannot be written the notice comes again at the next start; that is no reason not to
    // start.
    try {
        File file = files_.openFile(noticeFile, FileMode::binary);
        file.put(1, bytesOf(settings_.noticeVersion));
        file.close();
    } catch (const RunTimeError& error) {
        view_.report(error);
    }
}

void StartUp::chooseResultFont() {
    settings_.resultFontName = view_.printerFontName();
    try {
        File file = files_.openFile(fontFileName, FileMode::input);
        settings_.resultFontName = decodeWindows1252(file.readField());
        file.close();
    } catch (const RunTimeError&) {
        // No font was chosen yet: the printer's stays.
    }
    view_.setResultFont(settings_.resultFontName);
}

void StartUp::run() {
    view_.showMainWindow();
    {
        const BusyPointer busy(window_);
        readWorkFolder();
        readNoticeVersion();
    }
    // Both sides are singles: a file that holds exactly 7.1 as a single is up to date.
    constexpr auto version = static_cast<float>(programVersion);
    if (settings_.noticeVersion < version) {
        settings_.noticeVersion = version;
        if (view_.showVersionNotice()) storeNoticeVersion();
    }
    view_.showDisclaimer();
    {
        const BusyPointer busy(window_);
        document_.readDefaultCase(settings_.workFolder);
        view_.showInputForm();
    }
    chooseResultFont();
    view_.showMainWindow();
}

} // namespace varno
