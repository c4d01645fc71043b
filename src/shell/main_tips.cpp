#include "shell/main_tips.h"

#include <cmath>
#include <utility>

#include "controls/control_ids.h"
#include "controls/control_spec.h"
#include "controls/rule_sets.h"

namespace varno {

void MainTips::create(HWND main) {
    main_ = main;
    for (int flag = 0; HWND button = GetDlgItem(main, idFlag + flag); ++flag)
        flags_.add(button, flagTip(flag));
}

void MainTips::showSketch(SketchTips tips) {
    shown_ = std::move(tips);
    placeAgain();
}

void MainTips::placeAgain() {
    if (main_ == nullptr) return;
    std::vector<win32::Tip> tips;
    addParts(tips, idLoadPicture, 0, loadPictureWidth);
    addParts(tips, idSlabStrip, slabStripStart, slabStripWidth);
    const HWND strip = GetDlgItem(main_, idSlabStrip);
    int support = 0;
    for (const std::string& text : shown_.supports)
        tips.push_back({GetDlgItem(strip, idSupportButton + support++), std::nullopt, text});
    sketch_.show(tips);
}

void MainTips::addParts(std::vector<win32::Tip>& tips, int area, double start, double width) const {
    const HWND window = GetDlgItem(main_, area);
    RECT client{};
    GetClientRect(window, &client);
    const auto toPixels = [&](double twips) {
        return static_cast<LONG>(std::lround((start + twips) * static_cast<double>(client.right) / width));
    };
    for (const SketchTip& tip : shown_.parts)
        tips.push_back({window, RECT{toPixels(tip.left), 0, toPixels(tip.right), client.bottom}, tip.text});
}

} // namespace varno
