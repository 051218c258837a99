#include "server/script_object.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brx::checks {

namespace {
constexpr DISPID the_member = 1001;
}

ScriptObject::~ScriptObject() { EXPECT_EQ(references_, 0u) << "references were kept"; }

int ScriptObject::refusals_of(REFIID iid) const {
    return static_cast<int>(std::count(refused_.begin(), refused_.end(), iid));
}

HRESULT ScriptObject::QueryInterface(REFIID iid, void** object) {
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch) {
        refused_.push_back(iid);
        return E_NOINTERFACE;
    }
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

HRESULT ScriptObject::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

HRESULT ScriptObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = nullptr;
    return E_NOTIMPL;
}

HRESULT ScriptObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    std::fill(ids, ids + count, DISPID_UNKNOWN);
    if (count != 1 || name_.empty() || name_ != names[0]) return DISP_E_UNKNOWNNAME;
    ids[0] = the_member;
    return S_OK;
}

HRESULT ScriptObject::Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT*,
                             EXCEPINFO*, UINT*) {
    if (member != the_member || !(flags & DISPATCH_METHOD)) return DISP_E_MEMBERNOTFOUND;
    if (parameters->cNamedArgs != 0) return DISP_E_NONAMEDARGS;
    std::vector<const VARIANT*> arguments;
    for (UINT i = parameters->cArgs; i-- > 0;) arguments.push_back(&parameters->rgvarg[i]);
    return member_(arguments);
}

} // namespace brx::checks
