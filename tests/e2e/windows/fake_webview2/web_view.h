// web_view.h: the page's object and its settings.
#pragma once
#include <string>

#include "com_object.h"

[[nodiscard]] ComObject& webView();

/// The page posts a string. Nothing happens when the program has no handler for it. UI thread only, in turn.
void postFromPage(const std::string& message);

/// The page asks for a permission, such as 6 for reading the clipboard. UI thread only, in turn.
void askForPermission(int kind);

/// The page is about to go to an address; the driver hears "navigation-allowed" or "navigation-refused" with it.
/// UI thread only, in turn.
void startNavigation(const std::string& address);

/// The page asks for a new window; the driver hears "new-window-allowed" or "new-window-refused" with its address.
/// UI thread only, in turn.
void requestNewWindow(const std::string& address);

/// A script has given its result: the number of its "evaluate", a blank, and JSON; the number alone when there is no
/// page to run it. UI thread only, in turn.
void finishEvaluation(const std::string& answer);

/// The page has this title from now on. UI thread only.
void changeTitle(const std::string& text);

/// One of the engine's processes has ended, such as 0 for the browser itself and 1 for the page's. UI thread only, in
/// turn.
void failProcess(int kind);
