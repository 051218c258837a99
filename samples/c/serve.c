/* A host with servers of its own: lets a person choose one of three. Ends with 0 when one was chosen. */

#define COBJMACROS
#include <windows.h>

#include <oleauto.h>

#include <brxOpcAuto6.h>
#include <brxOpcDlgs6.h>

#include <stdio.h>

/* These objects live as long as the program, so references are not counted. Each is one interface; error
   information would take ISupportErrorInfo as well. */

typedef struct Server {
    _hlxOPCServer com; /* first, so that a pointer to the interface is one to the server */
    const wchar_t *node, *name;
} Server;

static HRESULT text(BSTR* result, const wchar_t* value) {
    *result = SysAllocString(value);
    return *result ? S_OK : E_OUTOFMEMORY;
}

static HRESULT give(void* object, REFIID own, REFIID iid, void** result) {
    const BOOL known =
        IsEqualIID(iid, own) || IsEqualIID(iid, &IID_IUnknown) || IsEqualIID(iid, &IID_IDispatch);
    *result = known ? object : NULL;
    return known ? S_OK : E_NOINTERFACE;
}

/* What every interface begins with. Nothing is called by its name. */
#define BEGINNING(Kind)                                                                                      \
    static HRESULT STDMETHODCALLTYPE Kind##_query(Kind* self, REFIID iid, void** result) {                   \
        return give(self, &IID_##Kind, iid, result);                                                         \
    }                                                                                                        \
    static ULONG STDMETHODCALLTYPE Kind##_count(Kind* self) { return (void)self, 1; }                        \
    static HRESULT STDMETHODCALLTYPE Kind##_infos(Kind* self, UINT* count) {                                 \
        return (void)self, *count = 0, S_OK;                                                                 \
    }                                                                                                        \
    static HRESULT STDMETHODCALLTYPE Kind##_info(Kind* self, UINT index, LCID locale, ITypeInfo** info) {    \
        return (void)self, (void)index, (void)locale, *info = NULL, E_NOTIMPL;                               \
    }                                                                                                        \
    static HRESULT STDMETHODCALLTYPE Kind##_names(Kind* self, REFIID iid, LPOLESTR* names, UINT count,       \
                                                  LCID locale, DISPID* ids) {                                \
        return (void)self, (void)iid, (void)names, (void)count, (void)locale, (void)ids, E_NOTIMPL;          \
    }                                                                                                        \
    static HRESULT STDMETHODCALLTYPE Kind##_invoke(Kind* self, DISPID id, REFIID iid, LCID locale,           \
                                                   WORD flags, DISPPARAMS* arguments, VARIANT* result,       \
                                                   EXCEPINFO* exception, UINT* wrong) {                      \
        return (void)self, (void)id, (void)iid, (void)locale, (void)flags, (void)arguments, (void)result,    \
               (void)exception, (void)wrong, E_NOTIMPL;                                                      \
    }
#define MEMBERS_OF_BEGINNING(Kind)                                                                           \
    Kind##_query, Kind##_count, Kind##_count, Kind##_infos, Kind##_info, Kind##_names, Kind##_invoke

BEGINNING(_hlxOPCServer)

static HRESULT STDMETHODCALLTYPE get_name(_hlxOPCServer* self, BSTR* name) {
    return text(name, ((Server*)self)->name);
}
static HRESULT STDMETHODCALLTYPE get_node(_hlxOPCServer* self, BSTR* node) {
    return text(node, ((Server*)self)->node);
}
static HRESULT STDMETHODCALLTYPE not_called(_hlxOPCServer* self) { return (void)self, E_NOTIMPL; }
static HRESULT STDMETHODCALLTYPE no_object(_hlxOPCServer* self, IDispatch** object) {
    return (void)self, *object = NULL, E_NOTIMPL;
}

static _hlxOPCServerVtbl server_members = {MEMBERS_OF_BEGINNING(_hlxOPCServer),
                                           get_name,
                                           get_node,
                                           not_called,
                                           not_called,
                                           no_object,
                                           not_called,
                                           not_called,
                                           no_object};

static Server all[] = {{{&server_members}, L"", L"Mill.Server.1"},
                       {{&server_members}, L"LINE2", L"Oven.Server.1"},
                       {{&server_members}, L"LINE2", L"Scales.Server.2"}};
enum { count_of_servers = sizeof all / sizeof all[0] };

BEGINNING(_hlxOPCServers)

static HRESULT STDMETHODCALLTYPE get_parent(_hlxOPCServers* self, IDispatch** parent) {
    return (void)self, *parent = NULL, E_NOTIMPL;
}
static HRESULT STDMETHODCALLTYPE add(_hlxOPCServers* self, BSTR name, BSTR node, VARIANT_BOOL connect,
                                     _hlxOPCServer** server) {
    return (void)self, (void)name, (void)node, (void)connect, *server = NULL, E_NOTIMPL;
}
static HRESULT STDMETHODCALLTYPE get_last_error(_hlxOPCServers* self, BSTR* error) {
    return (void)self, text(error, L"");
}
static HRESULT STDMETHODCALLTYPE get_item(_hlxOPCServers* self, VARIANT index, _hlxOPCServer** server) {
    VARIANT position;
    (void)self;
    *server = NULL;
    VariantInit(&position);
    if (FAILED(VariantChangeType(&position, &index, 0, VT_I4)) || position.lVal < 1 ||
        position.lVal > count_of_servers)
        return DISP_E_BADINDEX;
    *server = &all[position.lVal - 1].com;
    return S_OK;
}
static HRESULT STDMETHODCALLTYPE get_count(_hlxOPCServers* self, LONG* count) {
    return (void)self, *count = count_of_servers, S_OK;
}

static _hlxOPCServersVtbl servers_members = {
    MEMBERS_OF_BEGINNING(_hlxOPCServers), get_parent, add, get_last_error, get_item, get_count};
static _hlxOPCServers servers = {&servers_members};

/* The position of the server that was chosen, from 1; 0 for none. */
static short choose(void) {
    IDispatch* shown = (IDispatch*)&servers;
    _ServerSelect* dialog = NULL;
    VARIANT_BOOL chosen = VARIANT_FALSE;
    short position = 0;
    if (FAILED(CoCreateInstance(&CLSID_ServerSelect, NULL, CLSCTX_INPROC_SERVER, &IID__ServerSelect,
                                (void**)&dialog)))
        return 0;
    _ServerSelect_Show(dialog, &shown, &chosen);
    if (chosen != VARIANT_FALSE) _ServerSelect_get_ServerIndex(dialog, &position);
    _ServerSelect_Release(dialog);
    return position;
}

int main(void) {
    short position;
    OleInitialize(NULL);
    position = choose();
    if (position != 0) printf("Server %d\n", position);
    OleUninitialize();
    return position != 0 ? 0 : 1;
}
