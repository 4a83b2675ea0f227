/* Usage: first_paint COMMAND ARGUMENT...

   Starts a program and reports when its window of 800 by 600 pixels first shows something: prints the process id and
   the milliseconds since its start, then ends the program when its own input ends. An empty page is of one colour,
   whatever that is; the first row of pixels with two colours is the first paint. */
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <signal.h>
#include <stdio.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

enum { width = 800, height = 600, margin = 8, rowStep = 20, interval = 1000 /* microseconds */, patience = 30000 };

static double milliseconds(void) {
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return (double)now.tv_sec * 1e3 + (double)now.tv_nsec / 1e6;
}

static Window shownWindow(Display* display) {
    Window root, parent, *children, found = None;
    unsigned int count;
    if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count)) return None;
    for (unsigned int i = 0; i < count; ++i) {
        XWindowAttributes about;
        if (!XGetWindowAttributes(display, children[i], &about)) continue;
        if (about.map_state == IsViewable && about.width == width && about.height == height) found = children[i];
    }
    if (children != NULL) XFree(children);
    return found;
}

static Bool hasTwoColours(Display* display, Window window, int y) {
    XImage* row = XGetImage(display, window, margin, y, width - 2 * margin, 1, AllPlanes, ZPixmap);
    if (row == NULL) return False;
    Bool different = False;
    for (int x = 1; x < row->width && !different; ++x) different = XGetPixel(row, x, 0) != XGetPixel(row, 0, 0);
    XDestroyImage(row);
    return different;
}

static Bool isPainted(Display* display) {
    const Window window = shownWindow(display);
    if (window == None) return False;
    for (int y = margin; y < height - margin; y += rowStep) {
        if (hasTwoColours(display, window, y)) return True;
    }
    return False;
}

/* A window may go between two questions about it; that is no reason to end. */
static int ignoreError(Display* display, XErrorEvent* error) {
    (void)display, (void)error;
    return 0;
}

int main(int argc, char** argv) {
    Display* display = XOpenDisplay(NULL);
    if (argc < 2 || display == NULL) return 2;
    XSetErrorHandler(ignoreError);
    const double start = milliseconds();
    const pid_t child = fork();
    if (child == 0) {
        setpgid(0, 0);
        execv(argv[1], argv + 1);
        _exit(127);
    }
    while (!isPainted(display) && milliseconds() - start < patience) usleep(interval);
    printf("%d %.1f\n", child, milliseconds() - start);
    fflush(stdout);
    while (getchar() != EOF) continue;
    kill(-child, SIGTERM);
    waitpid(child, NULL, 0);
    return 0;
}
