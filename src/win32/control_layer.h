#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace varno::win32 {

struct ControlLayers;

/// What the program adds to a control of Windows: it sees the control's messages first, and goes with it. Of several the
/// last one that came is the first to see them.
///
/// Windows has such layers too (SetWindowSubclass). It looks them up as a property of the window, anew for every message
/// and for every layer that hands one on; under Wine each time asks another process, and the form alone asked ten
/// thousand times before it stood.
class ControlLayer {
  public:
    ControlLayer() = default;
    virtual ~ControlLayer() = default;
    ControlLayer(const ControlLayer&) = delete;
    ControlLayer& operator=(const ControlLayer&) = delete;

  protected:
    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;
    /// What lies below makes of it: the layer that came before, the control at last.
    LRESULT below(UINT message, WPARAM wParam, LPARAM lParam);
    HWND control() const { return control_; }

  private:
    friend struct ControlLayers;
    friend void layOver(HWND control, std::unique_ptr<ControlLayer> layer);

    HWND control_ = nullptr;
    ControlLayers* all_ = nullptr;
    std::size_t place_ = 0; ///< counted from the control
};

/// For controls of Windows' own classes only: windows of the program's own keep something else where the layers are kept.
void layOver(HWND control, std::unique_ptr<ControlLayer> layer);
std::vector<ControlLayer*> layersOver(HWND control);

} // namespace varno::win32
