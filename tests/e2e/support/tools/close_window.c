/* Asks a window to close, as its close button does: close_window ID */
#include <X11/Xlib.h>
#include <stdio.h>
#include <stdlib.h>

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    Display* display = XOpenDisplay(NULL);
    if (display == NULL) {
        fputs("close_window: there is no display\n", stderr);
        return 1;
    }
    const Window window = strtoul(argv[1], NULL, 0);
    XEvent request = {.xclient = {.type = ClientMessage,
                                  .window = window,
                                  .message_type = XInternAtom(display, "WM_PROTOCOLS", False),
                                  .format = 32}};
    request.xclient.data.l[0] = (long)XInternAtom(display, "WM_DELETE_WINDOW", False);
    request.xclient.data.l[1] = CurrentTime;
    XSendEvent(display, window, False, NoEventMask, &request);
    XCloseDisplay(display);
    return 0;
}
