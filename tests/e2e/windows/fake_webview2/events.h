// events.h: what the page raises. As in the real runtime, no event is raised while a handler of another is on the
// stack, not even in the message loop of a dialog that the handler shows: events wait until it returns.
#pragma once
#include <functional>

/// Raises an event now or when its turn has come. UI thread only.
void raiseInTurn(std::function<void()> event);
