#pragma once

#include "common/model/collection.h"
#include "common/model/configuration.h"
#include "common/model/database.h"
#include "common/model/opc_automation.h"
#include "common/model/services.h"

#include <windows.h>

#include <OPCAutomation.h>
#include <brxDatabase6.h>
#include <brxOpcAuto6.h>

namespace brx {

template <class ModelClass, class InterfaceClass> struct Binding {
    using Model = ModelClass;
    using Interface = InterfaceClass;
};

template <class... Binding> struct BindingList : Binding... {};

/// Which interface of the model is which automation interface.
using Bindings = BindingList<
    Binding<OPCServer, ::IOPCAutoServer>, Binding<OPCGroups, ::IOPCGroups>, Binding<OPCGroup, ::IOPCGroup>,
    Binding<OPCItems, ::OPCItems>, Binding<OPCItem, ::OPCItem>, Binding<OPCBrowser, ::OPCBrowser>,
    Binding<hlxApplication, ::_hlxApplication>, Binding<hlxOPCServers, ::_hlxOPCServers>,
    Binding<hlxOPCServer, ::_hlxOPCServer>, Binding<hlxOPCServerHolder, ::_hlxOPCServerHolder>,
    Binding<hlxOPCConfiguration, ::_hlxOPCConfiguration>, Binding<hlxOPCTests, ::_hlxOPCTests>,
    Binding<hlxOPCTest, ::_hlxOPCTest>, Binding<hlxOPCDescriptors, ::_hlxOPCDescriptors>,
    Binding<hlxOPCDescriptor, ::_hlxOPCDescriptor>, Binding<hlxDatabase, ::_hlxDatabase>,
    Binding<hlxTestData, ::_hlxTestData>, Binding<hlxRecord, ::_hlxRecord>,
    Binding<hlxSelection, ::_hlxSelection>, Binding<hlxMessage, ::_hlxMessage>, Binding<hlxHelp, ::_hlxHelp>>;

namespace detail {
template <class Model, class Interface> Interface* interface_of(const Binding<Model, Interface>*);
} // namespace detail

/// The automation interface that belongs to an interface of the model.
template <class Model>
using InterfaceOf =
    std::remove_pointer_t<decltype(detail::interface_of<Model>(static_cast<const Bindings*>(nullptr)))>;

} // namespace brx
