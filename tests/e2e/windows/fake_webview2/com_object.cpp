#include "com_object.h"

#include <string>
#include <utility>

#include "driver.h"

template <std::size_t slot>
static HRESULT STDMETHODCALLTYPE unexpectedCall(ComObject* self) {
    tellDriver("unexpected-call", std::string(self->name) + " " + std::to_string(slot));
    return E_NOTIMPL;
}

template <std::size_t... slots>
static std::array<void*, sizeof...(slots)> unexpectedCalls(std::index_sequence<slots...>) {
    return {reinterpret_cast<void*>(&unexpectedCall<slots>)...};
}

static HRESULT STDMETHODCALLTYPE noOtherInterface(ComObject*, REFIID, void** result) {
    *result = nullptr;
    return E_NOINTERFACE;
}

static ULONG STDMETHODCALLTYPE keep(ComObject*) { return 1; }

ComObject::ComObject(const char* objectName)
    : table(unexpectedCalls(std::make_index_sequence<slotCount>())), name(objectName) {
    methods = table.data();
    set(0, noOtherInterface);
    table[1] = reinterpret_cast<void*>(&keep);
    table[2] = reinterpret_cast<void*>(&keep);
}

Handler handlerOf(IUnknown* given, const GUID& interfaceId) {
    void* found = nullptr;
    if (FAILED(given->QueryInterface(interfaceId, &found))) return nullptr;
    return {static_cast<IUnknown*>(found), [](IUnknown* handler) { handler->Release(); }};
}
