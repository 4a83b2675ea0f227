// com_object.h: COM objects whose tables are filled by slot number, as the runtime's published interfaces count them.
// They do not derive from the interfaces that the program declares: a slot that is wrong there is noticed here.
#pragma once
#include <windows.h>
// windows.h must come first
#include <unknwn.h>

#include <array>
#include <cstddef>
#include <memory>

/// Lives as long as the process: references are not counted and no other interface is given. A method that is not set
/// reports to the driver "unexpected-call" with the object's name and the slot, and fails.
struct ComObject {
    static constexpr std::size_t slotCount = 61;  ///< of the largest interface

    explicit ComObject(const char* objectName);
    ComObject(const ComObject&) = delete;

    template <typename... Parameters>
    void set(std::size_t slot, HRESULT(STDMETHODCALLTYPE* method)(ComObject*, Parameters...)) {
        table[slot] = reinterpret_cast<void*>(method);
    }

    void** methods = nullptr;  ///< must stay the first member: callers find the table through it
    std::array<void*, slotCount> table;
    const char* name;
};

/// One of the program's handlers, with a reference that is given back at the end.
using Handler = std::shared_ptr<IUnknown>;

/// Asks for the handler's interface as the real runtime does; null when the handler does not know its own.
[[nodiscard]] Handler handlerOf(IUnknown* given, const GUID& interfaceId);

/// Calls Invoke, the only method of a handler.
template <typename First, typename Second>
void invoke(const Handler& handler, First first, Second second) {
    using Invoke = HRESULT(STDMETHODCALLTYPE*)(IUnknown*, First, Second);
    constexpr std::size_t invokeSlot = 3;
    void** const methods = *reinterpret_cast<void***>(handler.get());
    reinterpret_cast<Invoke>(methods[invokeSlot])(handler.get(), first, second);
}
