#include "win32/accessible_object.h"

#include <objbase.h>
#include <oleacc.h>

#include <utility>

#include "win32/late.h"

namespace varno::win32 {

namespace {

bool isSelf(const VARIANT& child) {
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// The interfaces of COM have no destructor.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// The system's own object of the control, with another name and role.
class NamedControl : public IAccessible {
  public:
    NamedControl(IAccessible* own, std::wstring name, long role)
        : own_(own), name_(std::move(name)), role_(role) {}
    NamedControl(const NamedControl&) = delete;
    NamedControl& operator=(const NamedControl&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = nullptr;
        if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IDispatch) &&
            !IsEqualIID(id, IID_IAccessible))
            return E_NOINTERFACE;
        *object = static_cast<IAccessible*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        if (!isSelf(child) || name_.empty()) return own_->get_accName(child, name);
        *name = Late<decltype(&SysAllocString)>(L"oleaut32.dll", "SysAllocString")(name_.c_str());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        if (!isSelf(child) || role_ == 0) return own_->get_accRole(child, role);
        role->vt = VT_I4;
        role->lVal = role_;
        return S_OK;
    }

    // As the system does.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return own_->GetTypeInfoCount(count); }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return own_->GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return own_->GetIDsOfNames(id, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* wrong) override {
        return own_->Invoke(member, id, locale, flags, parameters, result, exception, wrong);
    }
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return own_->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override {
        return own_->get_accChildCount(count);
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        return own_->get_accChild(child, object);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return own_->get_accValue(child, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override {
        return own_->get_accDescription(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        return own_->get_accState(child, state);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* text) override {
        return own_->get_accHelp(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
        return own_->get_accHelpTopic(file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
        return own_->get_accKeyboardShortcut(child, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override { return own_->get_accFocus(child); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
        return own_->get_accSelection(children);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
        return own_->get_accDefaultAction(child, action);
    }
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override {
        return own_->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                          VARIANT child) override {
        return own_->accLocation(left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override {
        return own_->accNavigate(direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long left, long top, VARIANT* child) override {
        return own_->accHitTest(left, top, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
        return own_->accDoDefaultAction(child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override {
        return own_->put_accName(child, name);
    }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
        return own_->put_accValue(child, value);
    }

  private:
    virtual ~NamedControl() { own_->Release(); }

    IAccessible* own_;
    std::wstring name_;
    long role_;
    ULONG references_ = 1;
};

#pragma GCC diagnostic pop

} // namespace

LRESULT answerScreenReader(HWND control, WPARAM asked, const std::wstring& name, long role) {
    constexpr const wchar_t* library = L"oleacc.dll";
    const Late<decltype(&CreateStdAccessibleObject)> create(library, "CreateStdAccessibleObject");
    const Late<decltype(&LresultFromObject)> hand(library, "LresultFromObject");
    void* own = nullptr;
    if (FAILED(create(control, OBJID_CLIENT, IID_IAccessible, &own))) return 0;
    auto* const object = new NamedControl(static_cast<IAccessible*>(own), name, role);
    const LRESULT result = hand(IID_IAccessible, asked, object);
    object->Release();
    return result;
}

} // namespace varno::win32
