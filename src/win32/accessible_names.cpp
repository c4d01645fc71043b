#include "win32/accessible_names.h"

#include <initguid.h>
#include <objbase.h>
#include <oleacc.h>

#include <memory>

#include "win32/accessible_object.h"
#include "win32/control_layer.h"
#include "win32/late.h"
#include "win32/strings.h"

namespace varno::win32 {

namespace {

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

using Properties = std::unique_ptr<IAccPropServices, Releaser>;

Properties propertyService() {
    constexpr const wchar_t* library = L"ole32.dll";
    Late<decltype(&CoInitializeEx)>(library, "CoInitializeEx")(nullptr, COINIT_APARTMENTTHREADED);
    void* service = nullptr;
    Late<decltype(&CoCreateInstance)>(library, "CoCreateInstance")(
        CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, &service);
    return Properties(static_cast<IAccPropServices*>(service));
}

// The system keeps the name and the role itself, beside all else that it knows of the control.
bool annotated(HWND control, const std::wstring& name, long role) {
    static const Properties service = propertyService();
    constexpr auto client = static_cast<DWORD>(OBJID_CLIENT);
    if (!service) return false;
    if (!name.empty() &&
        FAILED(service->SetHwndPropStr(control, client, CHILDID_SELF, PROPID_ACC_NAME, name.c_str())))
        return false;
    if (role == 0) return true;
    VARIANT value{};
    value.vt = VT_I4;
    value.lVal = role;
    return SUCCEEDED(service->SetHwndProp(control, client, CHILDID_SELF, PROPID_ACC_ROLE, value));
}

class NamedControl : public ControlLayer {
  public:
    NamedControl(const std::string& name, long role) : spoken_(name, role) {}
    void rename(const std::string& name, long role) { spoken_ = SpokenName(name, role); }

  private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETOBJECT) {
            if (const auto answer = spoken_.answer(control(), wParam, lParam)) return *answer;
        }
        return below(message, wParam, lParam);
    }

    SpokenName spoken_;
};

} // namespace

SpokenName::SpokenName(const std::string& name, long role) : name_(wide(name)), role_(role) {}

std::optional<LRESULT> SpokenName::answer(HWND asked, WPARAM wParam, LPARAM lParam) {
    if (!systemKnows_) systemKnows_ = annotated(asked, name_, role_);
    if (*systemKnows_ || static_cast<long>(lParam) != static_cast<long>(OBJID_CLIENT)) return std::nullopt;
    return answerScreenReader(asked, wParam, name_, role_);
}

void nameForScreenReaders(HWND control, const std::string& name, long role) {
    if (control == nullptr) return;
    for (ControlLayer* const layer : layersOver(control)) {
        if (auto* const named = dynamic_cast<NamedControl*>(layer)) return named->rename(name, role);
    }
    layOver(control, std::make_unique<NamedControl>(name, role));
}

} // namespace varno::win32
