// Handlers that WebView2 calls: counted COM objects around a function.
#pragma once
#include <windows.h>
// windows.h must come first
#include <unknwn.h>

#include <atomic>
#include <functional>
#include <memory>
#include <utility>

struct ComRelease {
    void operator()(IUnknown* object) const { object->Release(); }
};
/// One reference, given back at the end of the scope.
template <typename Interface>
using OwnedCom = std::unique_ptr<Interface, ComRelease>;

/// A handler with one interface beside IUnknown, whose only method is Invoke with two parameters.
template <typename Interface, typename First, typename Second>
class ComHandler final : public Interface {
public:
    using Function = std::function<HRESULT(First, Second)>;

    /// `id` is the interface's published identifier. `function` must not throw.
    ComHandler(const IID& id, Function function) : id_(id), function_(std::move(function)) {}
    virtual ~ComHandler() = default;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
        if (result == nullptr) return E_POINTER;
        *result = nullptr;
        if (!IsEqualIID(id, id_) && !IsEqualIID(id, IID_IUnknown)) return E_NOINTERFACE;
        *result = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(First first, Second second) override { return function_(first, second); }

private:
    const IID id_;
    const Function function_;
    std::atomic<ULONG> references_ = 1;
};

template <typename Interface>
struct HandlerTypes;
/// The parameters of an interface's Invoke.
template <typename Owner, typename FirstParameter, typename SecondParameter>
struct HandlerTypes<HRESULT (Owner::*)(FirstParameter, SecondParameter)> {
    using First = FirstParameter;
    using Second = SecondParameter;
};

/// Makes a handler; its one reference is the caller's.
template <typename Interface, typename Function>
[[nodiscard]] OwnedCom<Interface> makeHandler(const IID& id, Function function) {
    using Types = HandlerTypes<decltype(&Interface::Invoke)>;
    using Handler = ComHandler<Interface, typename Types::First, typename Types::Second>;
    return OwnedCom<Interface>(new Handler(id, std::move(function)));
}
