// driver.h: the program on loopback that plays the page and hears of every call.
#pragma once
#include <functional>
#include <string>

#include "line.h"

/// Connects to the port named by TESSARY_TEST_RUNTIME_PORT; false when nobody listens there.
/// `obey` gets each line of the driver, on a thread of its own. A driver that goes away takes the process with it.
[[nodiscard]] bool connectDriver(std::function<void(const Line&)> obey);

/// May be called on any thread; lines of different threads do not mix.
void tellDriver(const std::string& verb, const std::string& text = {});
