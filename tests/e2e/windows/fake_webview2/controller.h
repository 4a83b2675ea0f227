// controller.h: the objects between the program's window and the page.
#pragma once
#include "com_object.h"

[[nodiscard]] ComObject& environment();

/// The program's window; null before it is known.
[[nodiscard]] HWND programWindow();
