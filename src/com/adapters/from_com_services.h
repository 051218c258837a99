#pragma once

#include "com/adapters/com_model.h"

namespace brx {

template <> class FromCom<hlxMessage> final : public ComModel<hlxMessage> {
public:
    using ComModel::ComModel;
    std::int32_t Show(const std::string& text, std::int32_t style, const std::string& title,
                      const Variant& default_button) override {
        return call<std::int32_t>(&Interface::Show)(text, style, title, default_button, Variant(Missing{}));
    }
};

template <> class FromCom<hlxHelp> final : public ComModel<hlxHelp> {
public:
    using ComModel::ComModel;
    std::string HelpFile() override { return call<std::string>(&Interface::get_HelpFile)(); }
};

} // namespace brx
