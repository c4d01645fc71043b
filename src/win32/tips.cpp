#include "win32/tips.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "win32/strings.h"

namespace varno::win32 {

namespace {

constexpr int widest = 440;
constexpr int stay = 20000; // ms

// What the tooltip window knows a tip by; the words stay the caller's.
TOOLINFOW toolOf(const Tip& tip, std::size_t place, std::wstring& words) {
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    if (tip.part) {
        tool.hwnd = tip.window;
        tool.uId = place;
        tool.rect = *tip.part;
    } else {
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = GetParent(tip.window);
        tool.uId = reinterpret_cast<UINT_PTR>(tip.window);
    }
    words = wide(tip.text);
    tool.lpszText = words.data();
    return tool;
}

bool aboutTheSame(const Tip& one, const Tip& other) {
    return one.window == other.window && one.part.has_value() == other.part.has_value();
}

} // namespace

void Tips::create(HWND owner) {
    window_ = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                              GetAncestor(owner, GA_ROOT), nullptr, programInstance(), nullptr);
    // Only with a width does a line end show as one.
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, widest);
    SendMessageW(window_, TTM_SETDELAYTIME, TTDT_AUTOPOP, stay);
    host_.tips().push_back(window_);
}

void Tips::clear() {
    if (window_ == nullptr) return;
    std::erase(host_.tips(), window_);
    DestroyWindow(window_);
    window_ = nullptr;
    tips_.clear();
}

void Tips::add(Tip tip) {
    if (window_ == nullptr) create(tip.window);
    std::wstring words;
    TOOLINFOW tool = toolOf(tip, tips_.size(), words);
    SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    tips_.push_back(std::move(tip));
}

void Tips::change(std::size_t place, const Tip& tip) {
    Tip& before = tips_[place];
    std::wstring words;
    TOOLINFOW tool = toolOf(tip, place, words);
    if (tip.part && !EqualRect(&*tip.part, &*before.part))
        SendMessageW(window_, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
    if (tip.text != before.text)
        SendMessageW(window_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    before = tip;
}

void Tips::show(const std::vector<Tip>& tips) {
    if (!std::ranges::equal(tips, tips_, aboutTheSame)) {
        clear();
        for (const Tip& tip : tips)
            add(tip);
        return;
    }
    for (std::size_t place = 0; place < tips.size(); ++place)
        change(place, tips[place]);
}

} // namespace varno::win32
