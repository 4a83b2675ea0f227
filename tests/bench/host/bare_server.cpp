// The least that the HTTP library can be asked for, to compare the program's server with: bare_server [THREADS]
// Answers "ok" and writes no log. Prints its port. As many threads as the library likes, unless a number is given.
#include <httplib.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    httplib::Server server;
    if (argc > 1) {
        const auto threads = static_cast<std::size_t>(std::atoi(argv[1]));
        server.new_task_queue = [threads] { return new httplib::ThreadPool(threads); };
    }
    server.Get(".*",
               [](const httplib::Request&, httplib::Response& response) { response.set_content("ok", "text/plain"); });
    std::printf("%d\n", server.bind_to_any_port("localhost"));
    std::fflush(stdout);
    return server.listen_after_bind() ? 0 : 1;
}
