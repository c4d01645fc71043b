#include "win32/control_layer.h"

#include <utility>

namespace varno::win32 {

// The layers of one control, which its user data points to.
struct ControlLayers {
    std::vector<std::unique_ptr<ControlLayer>> layers;
    WNDPROC own = nullptr; ///< the control's
    int running = 0;       ///< messages that are being dealt with, one inside the other
    bool gone = false;     ///< the control is

    LRESULT ask(std::size_t place, UINT message, WPARAM wParam, LPARAM lParam) {
        return layers[place]->onMessage(message, wParam, lParam);
    }
    static ControlLayers* of(HWND control) {
        return reinterpret_cast<ControlLayers*>(GetWindowLongPtrW(control, GWLP_USERDATA));
    }
    static LRESULT CALLBACK proc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
};

LRESULT CALLBACK ControlLayers::proc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    ControlLayers* const all = of(control);
    ++all->running;
    const LRESULT result = all->ask(all->layers.size() - 1, message, wParam, lParam);
    --all->running;
    if (message == WM_NCDESTROY) all->gone = true;
    // A click can destroy the control that is still dealing with it.
    if (all->gone && all->running == 0) delete all;
    return result;
}

LRESULT ControlLayer::below(UINT message, WPARAM wParam, LPARAM lParam) {
    if (place_ > 0) return all_->ask(place_ - 1, message, wParam, lParam);
    return CallWindowProcW(all_->own, control_, message, wParam, lParam);
}

void layOver(HWND control, std::unique_ptr<ControlLayer> layer) {
    ControlLayers* all = ControlLayers::of(control);
    if (all == nullptr) {
        all = new ControlLayers;
        SetWindowLongPtrW(control, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(all));
        all->own = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ControlLayers::proc)));
    }
    layer->control_ = control;
    layer->all_ = all;
    layer->place_ = all->layers.size();
    all->layers.push_back(std::move(layer));
}

std::vector<ControlLayer*> layersOver(HWND control) {
    std::vector<ControlLayer*> found;
    if (const ControlLayers* const all = ControlLayers::of(control)) {
        for (const auto& layer : all->layers)
            found.push_back(layer.get());
    }
    return found;
}

} // namespace varno::win32
