#include "win32/accessible_names.h"

#include <initguid.h>
#include <objbase.h>
#include <oleacc.h>

#include <memory>

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

} // namespace

void nameForScreenReaders(HWND control, const std::string& name) {
    static const Properties service = propertyService();
    if (!service || control == nullptr) return;
    service->SetHwndPropStr(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                            wide(name).c_str());
}

} // namespace varno::win32
