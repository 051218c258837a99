/* Lets a person choose an OPC server, and an item of it. Ends with 0 when an item was chosen. */

#define COBJMACROS
#include <windows.h>

#include <brxOpcDlgs6.h>

#include <stdio.h>

/* Calls a member by its name, or reads it, with one argument or none. */
static HRESULT member(IDispatch* object, const wchar_t* name, VARIANT* argument, VARIANT* result) {
    LPOLESTR spelled = (LPOLESTR)name;
    DISPPARAMS arguments = {argument, NULL, argument ? 1 : 0, 0};
    DISPID id;
    HRESULT status;
    VariantInit(result);
    status = IDispatch_GetIDsOfNames(object, &IID_NULL, &spelled, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(status)) return status;
    return IDispatch_Invoke(object, id, &IID_NULL, LOCALE_USER_DEFAULT,
                            DISPATCH_METHOD | DISPATCH_PROPERTYGET, &arguments, result, NULL, NULL);
}

/* The object that a member gives; NULL when there is none. */
static IDispatch* object_in(IDispatch* object, const wchar_t* name, VARIANT* argument) {
    VARIANT result;
    if (!object || FAILED(member(object, name, argument, &result))) return NULL;
    if (result.vt == VT_DISPATCH) return result.pdispVal;
    VariantClear(&result);
    return NULL;
}

static void let_go(IDispatch* object) {
    if (object) IDispatch_Release(object);
}

/* The position of the server that was chosen, from 1; 0 for none. */
static short pick_server(IDispatch* servers) {
    _ServerSelect* dialog = NULL;
    VARIANT_BOOL chosen = VARIANT_FALSE;
    short position = 0;
    if (FAILED(CoCreateInstance(&CLSID_ServerSelect, NULL, CLSCTX_INPROC_SERVER, &IID__ServerSelect,
                                (void**)&dialog)))
        return 0;
    _ServerSelect_Show(dialog, &servers, &chosen);
    if (chosen != VARIANT_FALSE) _ServerSelect_get_ServerIndex(dialog, &position);
    _ServerSelect_Release(dialog);
    return position;
}

/* The identifier of the item that was chosen; NULL for none. */
static BSTR pick_item(IDispatch* server) {
    IDispatch* groups = object_in(server, L"OPCGroups", NULL);
    IDispatch* group;
    _LeafSelect* dialog = NULL;
    VARIANT_BOOL chosen = VARIANT_FALSE;
    BSTR item = NULL;
    VARIANT name, nothing;
    VariantInit(&name);
    name.vt = VT_BSTR;
    name.bstrVal = SysAllocString(L"choosing an item");

    /* Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing.
     */
    group = object_in(groups, L"Add", &name);
    if (group && SUCCEEDED(CoCreateInstance(&CLSID_LeafSelect, NULL, CLSCTX_INPROC_SERVER, &IID__LeafSelect,
                                            (void**)&dialog))) {
        _LeafSelect_Show(dialog, server, group, &chosen);
        if (chosen != VARIANT_FALSE) _LeafSelect_get_ItemID(dialog, &item);
        _LeafSelect_Release(dialog);
        member(groups, L"Remove", &name, &nothing);
    }
    VariantClear(&name);
    let_go(group);
    let_go(groups);
    return item;
}

int main(void) {
    CLSID host_class;
    IDispatch *host = NULL, *servers, *entry, *server;
    VARIANT position, name;
    BSTR item = NULL;

    OleInitialize(NULL);
    /* Your program hands over its own servers; these are the sample host's. */
    if (SUCCEEDED(CLSIDFromProgID(L"brxSample.Host", &host_class)))
        CoCreateInstance(&host_class, NULL, CLSCTX_INPROC_SERVER, &IID_IDispatch, (void**)&host);
    servers = object_in(host, L"Servers", NULL);

    VariantInit(&position);
    position.vt = VT_I2;
    position.iVal = servers ? pick_server(servers) : 0;
    entry = position.iVal ? object_in(servers, L"Item", &position) : NULL;
    server = object_in(entry, L"OPCServer", NULL);
    if (server) item = pick_item(server);
    if (item && SUCCEEDED(member(entry, L"ServerName", NULL, &name))) {
        printf("%ls: %ls\n", name.bstrVal, item);
        VariantClear(&name);
    }

    let_go(server);
    let_go(entry);
    let_go(servers);
    let_go(host);
    OleUninitialize();
    if (!item) return 1;
    SysFreeString(item);
    return 0;
}
