#pragma once

#include <windows.h>

#include <brxOpcAuto6.h>

namespace brx::bench {

// The members of the host's interfaces that showing a configuration does not call.

class UnusedOfHlxOPCServer : public ::_hlxOPCServer {
public:
    STDMETHODIMP Reserved3() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved4() override { return E_NOTIMPL; }
    STDMETHODIMP get_Parent(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved6() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved7() override { return E_NOTIMPL; }

protected:
    ~UnusedOfHlxOPCServer() = default;
};

class UnusedOfHlxOPCConfiguration : public ::_hlxOPCConfiguration {
public:
    STDMETHODIMP Reserved1() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved2() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved4() override { return E_NOTIMPL; }
    STDMETHODIMP get_OPCGroup(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP put_SubgroupSize(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP put_SubgroupTriggerItem(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_SubgroupInterval(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP put_SubgroupTimeUnit(short) override { return E_NOTIMPL; }
    STDMETHODIMP put_PieceTriggerItem(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_PieceInterval(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP put_PieceTimeUnit(short) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved22() override { return E_NOTIMPL; }
    STDMETHODIMP put_SyncDateTime(DATE) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved25() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved26() override { return E_NOTIMPL; }
    STDMETHODIMP put_SubgroupTriggerType(short) override { return E_NOTIMPL; }
    STDMETHODIMP get_SubgroupTriggerValue(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_SubgroupTriggerValue(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP put_PieceTriggerType(short) override { return E_NOTIMPL; }
    STDMETHODIMP get_PieceTriggerValue(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_PieceTriggerValue(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved35() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved36() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved37() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved38() override { return E_NOTIMPL; }
    STDMETHODIMP put_Name(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_Active(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP put_DeadBand(float) override { return E_NOTIMPL; }
    STDMETHODIMP put_UpdateRate(LONG) override { return E_NOTIMPL; }

protected:
    ~UnusedOfHlxOPCConfiguration() = default;
};

class UnusedOfHlxOPCTests : public ::_hlxOPCTests {
public:
    STDMETHODIMP Add(_hlxOPCTest**) override { return E_NOTIMPL; }
    STDMETHODIMP Remove(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved5() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved6() override { return E_NOTIMPL; }

protected:
    ~UnusedOfHlxOPCTests() = default;
};

class UnusedOfHlxOPCTest : public ::_hlxOPCTest {
public:
    STDMETHODIMP put_State(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_Index(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved5() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved6() override { return E_NOTIMPL; }
    STDMETHODIMP get_TestData(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved8() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved9() override { return E_NOTIMPL; }
    STDMETHODIMP get_ItemText(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP put_OPCItemID(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_ClientHandle(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_ClientHandle(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved15() override { return E_NOTIMPL; }
    STDMETHODIMP put_ItemTrigger(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP get_ItemTrigger(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP get_TriggerExpression(short*) override { return E_NOTIMPL; }
    STDMETHODIMP put_TriggerExpression(short) override { return E_NOTIMPL; }
    STDMETHODIMP get_TriggerValue(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_TriggerValue(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP get_Constant(double*) override { return E_NOTIMPL; }
    STDMETHODIMP put_Constant(double) override { return E_NOTIMPL; }
    STDMETHODIMP get_SaveAs(short*) override { return E_NOTIMPL; }
    STDMETHODIMP put_SaveAs(short) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved26() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved27() override { return E_NOTIMPL; }
    STDMETHODIMP Reserved28() override { return E_NOTIMPL; }

protected:
    ~UnusedOfHlxOPCTest() = default;
};

class UnusedOfHlxOPCDescriptors : public ::_hlxOPCDescriptors {
public:
    STDMETHODIMP Add(LONG, _hlxOPCDescriptor**) override { return E_NOTIMPL; }
    STDMETHODIMP get_Item(VARIANT, _hlxOPCDescriptor**) override { return E_NOTIMPL; }
    STDMETHODIMP get_Count(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP Remove(LONG) override { return E_NOTIMPL; }

protected:
    ~UnusedOfHlxOPCDescriptors() = default;
};

class UnusedOfHlxOPCDescriptor : public ::_hlxOPCDescriptor {
public:
    STDMETHODIMP Reserved1() override { return E_NOTIMPL; }
    STDMETHODIMP get_Index(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP Reserved4() override { return E_NOTIMPL; }
    STDMETHODIMP put_ItemName(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_GroupName(BSTR) override { return E_NOTIMPL; }

protected:
    ~UnusedOfHlxOPCDescriptor() = default;
};

} // namespace brx::bench
