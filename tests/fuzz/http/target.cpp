// Whatever bytes reach the program's server, it answers or closes, and goes on serving the page.
#include "http/served_page.h"
#include "support/fuzz_target.h"
#include "support/input.h"

namespace fuzz_http {

FUZZ_TARGET(http) {
    startServerOnce();
    checkAnswer(answerTo(textOf(data, size)));
    checkPageIsServed();
    return 0;
}

}  // namespace fuzz_http
