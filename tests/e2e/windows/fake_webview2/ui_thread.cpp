#include "ui_thread.h"

#include <memory>
#include <utility>

using Task = std::function<void()>;

static HWND taskWindow;

static LRESULT CALLBACK runTask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_APP) return DefWindowProcW(window, message, wParam, lParam);
    const std::unique_ptr<Task> task(reinterpret_cast<Task*>(lParam));
    (*task)();
    return 0;
}

void becomeUiThread(HMODULE module) {
    WNDCLASSW taskClass{};
    taskClass.lpfnWndProc = runTask;
    taskClass.hInstance = module;
    taskClass.lpszClassName = L"FakeWebView2Tasks";
    RegisterClassW(&taskClass);
    taskWindow =
        CreateWindowExW(0, taskClass.lpszClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, module, nullptr);
}

void onUiThread(Task task) {
    auto owned = std::make_unique<Task>(std::move(task));
    if (PostMessageW(taskWindow, WM_APP, 0, reinterpret_cast<LPARAM>(owned.get()))) static_cast<void>(owned.release());
}
