// mingw-w64's start-up code replaces wildcards in arguments by file names unless this is 0. An argument is a file's
// name here and reaches the program as it was typed.
extern "C" {
int _dowildcard = 0;
}
