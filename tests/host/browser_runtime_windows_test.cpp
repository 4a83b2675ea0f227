#include "app/window/browser_runtime_windows.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "WebView2.h"

TEST(BrowserRuntime, IsAcceptedByTheThirdNumberOfItsVersion) {
    EXPECT_TRUE(isAcceptedRuntimeFolder(L"C:\\Runtime\\120.0.2210.91"));
    EXPECT_TRUE(isAcceptedRuntimeFolder(L"C:\\Runtime\\100.0.1150.38"));
    EXPECT_FALSE(isAcceptedRuntimeFolder(L"C:\\Runtime\\100.0.1149.99"));
    EXPECT_FALSE(isAcceptedRuntimeFolder(L"C:\\Runtime\\120.0.2210.91\\"));
    EXPECT_FALSE(isAcceptedRuntimeFolder(L"120.0.2210.91"));
    EXPECT_FALSE(isAcceptedRuntimeFolder(L"C:\\Runtime\\new"));
    EXPECT_FALSE(isAcceptedRuntimeFolder(L""));
}

/// The method's place in its interface's table: the Itanium ABI writes it into the first word of a member pointer.
template <typename Method>
static std::intptr_t slotOf(Method method) {
    std::intptr_t word = 0;
    std::memcpy(&word, &method, sizeof word);
    return (word - 1) / static_cast<std::intptr_t>(sizeof(void*));
}

TEST(WebView2Interfaces, HaveEveryCalledMethodInItsSlot) {
    EXPECT_EQ(slotOf(&ICoreWebView2::get_Settings), 3);
    EXPECT_EQ(slotOf(&ICoreWebView2::Navigate), 5);
    EXPECT_EQ(slotOf(&ICoreWebView2::NavigateToString), 6);
    EXPECT_EQ(slotOf(&ICoreWebView2::add_NavigationStarting), 7);
    EXPECT_EQ(slotOf(&ICoreWebView2::add_PermissionRequested), 23);
    EXPECT_EQ(slotOf(&ICoreWebView2::AddScriptToExecuteOnDocumentCreated), 27);
    EXPECT_EQ(slotOf(&ICoreWebView2::ExecuteScript), 29);
    EXPECT_EQ(slotOf(&ICoreWebView2::PostWebMessageAsString), 33);
    EXPECT_EQ(slotOf(&ICoreWebView2::add_WebMessageReceived), 34);
    EXPECT_EQ(slotOf(&ICoreWebView2::add_NewWindowRequested), 44);
    EXPECT_EQ(slotOf(&ICoreWebView2::remove_WindowCloseRequested), 60);
    EXPECT_EQ(slotOf(&ICoreWebView2Environment::CreateCoreWebView2Controller), 3);
    EXPECT_EQ(slotOf(&ICoreWebView2Environment::remove_NewBrowserVersionAvailable), 7);
    EXPECT_EQ(slotOf(&ICoreWebView2Controller::put_Bounds), 6);
    EXPECT_EQ(slotOf(&ICoreWebView2Controller::MoveFocus), 12);
    EXPECT_EQ(slotOf(&ICoreWebView2Controller::get_CoreWebView2), 25);
    EXPECT_EQ(slotOf(&ICoreWebView2Settings::put_IsStatusBarEnabled), 10);
    EXPECT_EQ(slotOf(&ICoreWebView2Settings::put_AreDevToolsEnabled), 12);
    EXPECT_EQ(slotOf(&ICoreWebView2Settings::put_IsBuiltInErrorPageEnabled), 20);
    EXPECT_EQ(slotOf(&ICoreWebView2WebMessageReceivedEventArgs::TryGetWebMessageAsString), 5);
    EXPECT_EQ(slotOf(&ICoreWebView2NavigationStartingEventArgs::get_Uri), 3);
    EXPECT_EQ(slotOf(&ICoreWebView2NavigationStartingEventArgs::put_Cancel), 8);
    EXPECT_EQ(slotOf(&ICoreWebView2NewWindowRequestedEventArgs::get_Uri), 3);
    EXPECT_EQ(slotOf(&ICoreWebView2NewWindowRequestedEventArgs::put_Handled), 6);
    EXPECT_EQ(slotOf(&ICoreWebView2PermissionRequestedEventArgs::get_PermissionKind), 4);
    EXPECT_EQ(slotOf(&ICoreWebView2PermissionRequestedEventArgs::put_State), 7);
}
