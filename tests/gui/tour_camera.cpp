#include "tour_camera.h"

#include <windows.h>

#include <array>
#include <cstdio>
#include <utility>

#include "driver/scene.h"
#include "driver/wait.h"
#include "picture.h"

namespace varno::gui {

namespace {

// The least that anybody can see something in.
constexpr LONG leastWidth = 80;
constexpr LONG leastHeight = 30;

RECT frameOf(HWND window) {
    RECT box{};
    GetWindowRect(window, &box);
    return box;
}

RECT clientOf(HWND window) {
    RECT box{};
    GetClientRect(window, &box);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&box), 2);
    return box;
}

bool inside(const RECT& inner, const RECT& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom && inner.left < inner.right && inner.top < inner.bottom;
}

std::string text(const RECT& box) {
    std::array<char, 80> letters{};
    std::snprintf(letters.data(), letters.size(), "%ldx%ld%+ld%+ld", box.right - box.left,
                  box.bottom - box.top, box.left, box.top);
    return letters.data();
}

// What a window shows on the screen.
class Look {
  public:
    explicit Look(HWND window) : window_(window), picture_(Picture::ofScreen(window)) {}

    /// Empty when nothing is wrong.
    std::string fault(const std::vector<Control>& controls) const {
        const RECT client = clientOf(window_);
        if (client.right - client.left < leastWidth || client.bottom - client.top < leastHeight) {
            return "has no room inside: " + text(client);
        }
        if (!inside(client, frameOf(window_))) return "has its inside outside its frame: " + text(client);
        if (!inside(client, screen())) return "is not on the screen: " + text(client);
        if (ofOneColour(client)) return "is of one colour";
        for (const Control& control : controls) {
            const std::string wrong = controlFault(control);
            if (!wrong.empty()) {
                return "shows its " + control.className() + " " + std::to_string(control.id()) +
                       " wrongly: it " + wrong;
            }
        }
        return "";
    }

  private:
    static RECT screen() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

    bool ofOneColour(const RECT& box) const {
        const RECT frame = frameOf(window_);
        const COLORREF first = picture_.at(box.left - frame.left, box.top - frame.top);
        for (LONG y = box.top; y < box.bottom; ++y) {
            for (LONG x = box.left; x < box.right; ++x) {
                if (picture_.at(x - frame.left, y - frame.top) != first) return false;
            }
        }
        return true;
    }

    std::string controlFault(const Control& control) const {
        if (!control.visible()) return "is hidden";
        const RECT box = frameOf(control.handle());
        HWND parent = control.handle();
        do {
            parent = GetParent(parent);
            if (parent == nullptr) return "is no part of the window";
            if (!inside(box, clientOf(parent)))
                return "is not inside: " + text(box) + " of " + text(clientOf(parent));
        } while (parent != window_);
        if (ofOneColour(box)) return "is of one colour";
        return "";
    }

    HWND window_;
    Picture picture_;
};

} // namespace

Camera::Camera(const Program& program, std::string folder) : program_(program), folder_(std::move(folder)) {}

void Camera::take(const std::string& name, const Control& window, const std::vector<Control>& controls) {
    std::string fault;
    // What is drawn is on its way to the screen for a while.
    program_.until([&] { return (fault = Look(window.handle()).fault(controls)).empty(); });
    if (!fault.empty()) throw GuiError("the window \"" + window.text() + "\" (" + name + ") " + fault);

    std::array<char, 16> number{};
    std::snprintf(number.data(), number.size(), "%02d-", ++pictures_);
    const std::string request = folder_ + "\\shot-request.txt";
    writeFile(request, number.data() + name + " " + text(clientOf(window.handle())) + "\n");
    if (!program_.until([&] { return !fileExists(request); }))
        throw GuiError("the picture " + name + " was not taken");
}

} // namespace varno::gui
