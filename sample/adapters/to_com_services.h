#pragma once

#include "adapters/model_com.h"

namespace brx {

template <> class ToCom<hlxMessage> final : public ModelCom<hlxMessage> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP Reserved1() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved2() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved3() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved4() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved5() override { return E_NOTIMPL; }
    STDMETHODIMP Show(BSTR text, LONG style, BSTR title, VARIANT default_button, VARIANT,
                      LONG* result) override {
        return give(result, &Model::Show, text, style, title, default_button);
    }
};

template <> class ToCom<hlxHelp> final : public ModelCom<hlxHelp> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_HelpFile(BSTR* result) override { return give(result, &Model::HelpFile); }
};

} // namespace brx
