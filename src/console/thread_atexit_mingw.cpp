// Runs the destructors of thread_local objects when a thread ends. mingw-w64's own runs them after the memory of those
// objects has been given back, so each thread that ends damages the heap; the HTTP server's workers are such threads.
// POSIX-thread keys are destroyed in the order of their creation, and the compiler's emulated thread-local storage
// frees its memory by such a key: a key made before it comes first.
#include <pthread.h>

#include <new>

namespace {

struct Registered {
    void (*destroy)(void*);
    void* object;
    Registered* earlier;
};

pthread_key_t registeredKey;

void destroyAll(void* last) {
    while (last != nullptr) {
        auto* registered = static_cast<Registered*>(last);
        registered->destroy(registered->object);
        last = registered->earlier;
        delete registered;
    }
}

__attribute__((constructor(101))) void makeKey() { pthread_key_create(&registeredKey, destroyAll); }

}  // namespace

/// Called by the compiler's code after it has made a thread_local object (Itanium C++ ABI, 3.3.5). Never fails: when
/// memory is short the object is not destroyed.
extern "C" int __cxa_thread_atexit(void (*destroy)(void*), void* object, void* /*library*/) {
    auto* earlier = static_cast<Registered*>(pthread_getspecific(registeredKey));
    auto* registered = new (std::nothrow) Registered{destroy, object, earlier};
    if (registered != nullptr) pthread_setspecific(registeredKey, registered);
    return 0;
}
