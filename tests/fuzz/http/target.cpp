// Whatever bytes reach the program's server, it answers or closes, and goes on serving the page.
#include "http/served_page.h"
#include "support/input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    startServerOnce();
    checkAnswer(answerTo(textOf(data, size)));
    checkPageIsServed();
    return 0;
}
