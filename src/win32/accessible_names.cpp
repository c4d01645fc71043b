#include "win32/accessible_names.h"

#include <initguid.h>
#include <objbase.h>
#include <oleacc.h>

#include <memory>

#include "win32/accessible_object.h"
#include "win32/strings.h"

namespace varno::win32 {

namespace {

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

using Properties = std::unique_ptr<IAccPropServices, Releaser>;

Properties propertyService() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    void* service = nullptr;
    CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, &service);
    return Properties(static_cast<IAccPropServices*>(service));
}

// The system keeps the name and the role itself, beside all else that it knows of the control.
bool annotated(IAccPropServices* service, HWND control, const std::string& name, long role) {
    constexpr auto client = static_cast<DWORD>(OBJID_CLIENT);
    if (service == nullptr) return false;
    if (!name.empty() &&
        FAILED(service->SetHwndPropStr(control, client, CHILDID_SELF, PROPID_ACC_NAME, wide(name).c_str())))
        return false;
    if (role == 0) return true;
    VARIANT value{};
    value.vt = VT_I4;
    value.lVal = role;
    return SUCCEEDED(service->SetHwndProp(control, client, CHILDID_SELF, PROPID_ACC_ROLE, value));
}

} // namespace

void nameForScreenReaders(HWND control, const std::string& name, long role) {
    static const Properties service = propertyService();
    if (control == nullptr) return;
    if (!annotated(service.get(), control, name, role)) answerScreenReaders(control, name, role);
}

} // namespace varno::win32
