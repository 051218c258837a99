#pragma once

#include <windows.h>

#include <OPCAutomation.h>

namespace brx {

// The members of the OPC automation interfaces that the model lacks, because nobody uses them.

class UnusedOfOPCServer : public ::IOPCAutoServer {
public:
    STDMETHODIMP put_ClientName(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_LocaleID(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_LocaleID(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_PublicGroupNames(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP Connect(BSTR, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP Disconnect() override { return E_NOTIMPL; }
    STDMETHODIMP QueryAvailableLocaleIDs(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP QueryAvailableProperties(BSTR, LONG*, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP GetItemProperties(BSTR, LONG, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP LookupItemIDs(BSTR, LONG, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**) override {
        return E_NOTIMPL;
    }

protected:
    ~UnusedOfOPCServer() = default;
};

class UnusedOfOPCGroups : public ::IOPCGroups {
public:
    STDMETHODIMP get_Parent(IOPCAutoServer**) override { return E_NOTIMPL; }
    STDMETHODIMP get_DefaultGroupIsActive(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DefaultGroupIsActive(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP get_DefaultGroupUpdateRate(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DefaultGroupUpdateRate(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_DefaultGroupDeadband(float*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DefaultGroupDeadband(float) override { return E_NOTIMPL; }
    STDMETHODIMP get_DefaultGroupLocaleID(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DefaultGroupLocaleID(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_DefaultGroupTimeBias(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DefaultGroupTimeBias(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get__NewEnum(IUnknown**) override { return E_NOTIMPL; }
    STDMETHODIMP GetOPCGroup(VARIANT, IOPCGroup**) override { return E_NOTIMPL; }
    STDMETHODIMP ConnectPublicGroup(BSTR, IOPCGroup**) override { return E_NOTIMPL; }
    STDMETHODIMP RemovePublicGroup(VARIANT) override { return E_NOTIMPL; }

protected:
    ~UnusedOfOPCGroups() = default;
};

class UnusedOfOPCGroup : public ::IOPCGroup {
public:
    STDMETHODIMP put_Name(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_IsPublic(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP get_IsActive(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP put_IsActive(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP get_IsSubscribed(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP put_IsSubscribed(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP get_ClientHandle(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_ClientHandle(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_ServerHandle(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_LocaleID(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_LocaleID(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_TimeBias(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_TimeBias(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_DeadBand(FLOAT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DeadBand(FLOAT) override { return E_NOTIMPL; }
    STDMETHODIMP get_UpdateRate(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_UpdateRate(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP SyncRead(SHORT, LONG, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**, VARIANT*, VARIANT*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP SyncWrite(LONG, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**) override { return E_NOTIMPL; }
    STDMETHODIMP AsyncRead(LONG, SAFEARRAY**, SAFEARRAY**, LONG, LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP AsyncWrite(LONG, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**, LONG, LONG*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP AsyncRefresh(SHORT, LONG, LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP AsyncCancel(LONG) override { return E_NOTIMPL; }

protected:
    ~UnusedOfOPCGroup() = default;
};

class UnusedOfOPCItems : public ::OPCItems {
public:
    STDMETHODIMP get_Parent(IOPCGroup**) override { return E_NOTIMPL; }
    STDMETHODIMP get_DefaultRequestedDataType(SHORT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DefaultRequestedDataType(SHORT) override { return E_NOTIMPL; }
    STDMETHODIMP get_DefaultAccessPath(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DefaultAccessPath(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_DefaultIsActive(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DefaultIsActive(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP get__NewEnum(IUnknown**) override { return E_NOTIMPL; }
    STDMETHODIMP GetOPCItem(LONG, ::OPCItem**) override { return E_NOTIMPL; }
    STDMETHODIMP AddItem(BSTR, LONG, ::OPCItem**) override { return E_NOTIMPL; }
    STDMETHODIMP SetActive(LONG, SAFEARRAY**, VARIANT_BOOL, SAFEARRAY**) override { return E_NOTIMPL; }
    STDMETHODIMP SetClientHandles(LONG, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**) override { return E_NOTIMPL; }
    STDMETHODIMP SetDataTypes(LONG, SAFEARRAY**, SAFEARRAY**, SAFEARRAY**) override { return E_NOTIMPL; }

protected:
    ~UnusedOfOPCItems() = default;
};

class UnusedOfOPCItem : public ::OPCItem {
public:
    STDMETHODIMP get_Parent(IOPCGroup**) override { return E_NOTIMPL; }
    STDMETHODIMP get_ClientHandle(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_ClientHandle(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_ServerHandle(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_AccessPath(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_AccessRights(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_RequestedDataType(SHORT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_RequestedDataType(SHORT) override { return E_NOTIMPL; }
    STDMETHODIMP get_Value(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP get_Quality(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_TimeStamp(DATE*) override { return E_NOTIMPL; }
    STDMETHODIMP get_EUType(SHORT*) override { return E_NOTIMPL; }
    STDMETHODIMP get_EUInfo(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP Read(SHORT, VARIANT*, VARIANT*, VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP Write(VARIANT) override { return E_NOTIMPL; }

protected:
    ~UnusedOfOPCItem() = default;
};

class UnusedOfOPCBrowser : public ::OPCBrowser {
public:
    STDMETHODIMP get_Filter(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP put_Filter(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_DataType(SHORT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_DataType(SHORT) override { return E_NOTIMPL; }
    STDMETHODIMP get_AccessRights(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_AccessRights(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_CurrentPosition(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get__NewEnum(IUnknown**) override { return E_NOTIMPL; }
    STDMETHODIMP MoveUp() override { return E_NOTIMPL; }
    STDMETHODIMP MoveDown(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP GetAccessPaths(BSTR, VARIANT*) override { return E_NOTIMPL; }

protected:
    ~UnusedOfOPCBrowser() = default;
};

} // namespace brx
