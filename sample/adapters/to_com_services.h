#pragma once

#include "adapters/model_com.h"

namespace brx {

template <> class ToCom<hlxMessage> final : public ModelCom<hlxMessage, brxModel::hlxMessage> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP Show(BSTR text, LONG style, BSTR title, VARIANT default_button, VARIANT,
                      LONG* result) override {
        return give(result, &Model::Show, text, style, title, default_button);
    }
};

template <> class ToCom<hlxHelp> final : public ModelCom<hlxHelp, brxModel::hlxHelp> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_HelpFile(BSTR* result) override { return give(result, &Model::HelpFile); }
};

} // namespace brx
