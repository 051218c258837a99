#pragma once

#include <windows.h>

#include <oleauto.h>

#include <atomic>
#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

/// An automation object as a script makes one: members by name only, no type library. It lives on the stack
/// of the check; references are counted to see that they come back.
class ScriptObject : public IDispatch {
public:
    /// What a call gives: a failure code or success. Arguments are in the order of the caller's text.
    using Member = std::function<HRESULT(const std::vector<const VARIANT*>& arguments)>;

    explicit ScriptObject(std::wstring member_name = L"", Member member = {})
        : name_(std::move(member_name)), member_(std::move(member)) {}
    ScriptObject(const ScriptObject&) = delete;
    ScriptObject& operator=(const ScriptObject&) = delete;
    virtual ~ScriptObject();

    /// How often it was asked for an interface that it lacks.
    int refusals_of(REFIID iid) const;
    ULONG references() const { return references_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override { return --references_; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT*, EXCEPINFO*, UINT*) override;

private:
    std::wstring name_;
    Member member_;
    std::vector<IID> refused_;
    std::atomic<ULONG> references_ = 0;
};

} // namespace brx::checks
