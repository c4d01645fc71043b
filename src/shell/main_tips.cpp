#include "shell/main_tips.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "controls/control_ids.h"
#include "controls/control_spec.h"
#include "controls/rule_sets.h"

namespace varno {

void MainTips::create(HWND main) {
    loadPicture_ = GetDlgItem(main, idLoadPicture);
    strip_ = GetDlgItem(main, idSlabStrip);
    for (int support = 0; HWND button = GetDlgItem(strip_, idSupportButton + support); ++support)
        supports_.push_back(button);
    for (int flag = 0; HWND button = GetDlgItem(main, idFlag + flag); ++flag)
        flags_.add(button, flagTip(flag));
}

void MainTips::showSketch(SketchTips tips) {
    shown_ = std::move(tips);
    placeAgain();
}

void MainTips::placeAgain() {
    if (strip_ == nullptr) return;
    std::vector<win32::Tip> tips;
    addParts(tips, loadPicture_, 0, loadPictureWidth);
    addParts(tips, strip_, slabStripStart, slabStripWidth);
    for (std::size_t support = 0; support < std::min(shown_.supports.size(), supports_.size()); ++support)
        tips.push_back({supports_[support], std::nullopt, shown_.supports[support]});
    sketch_.show(tips);
}

void MainTips::addParts(std::vector<win32::Tip>& tips, HWND window, double start, double width) const {
    RECT client{};
    GetClientRect(window, &client);
    const auto toPixels = [&](double twips) {
        return static_cast<LONG>(std::lround((start + twips) * static_cast<double>(client.right) / width));
    };
    for (const SketchTip& tip : shown_.parts)
        tips.push_back({window, RECT{toPixels(tip.left), 0, toPixels(tip.right), client.bottom}, tip.text});
}

} // namespace varno
