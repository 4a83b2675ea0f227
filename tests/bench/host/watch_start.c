/* Usage: watch_start IDLE COMMAND ARGUMENT...

   Starts a program and watches its window of 800 by 600 pixels. When all is shown and PATIENCE milliseconds have
   passed, prints one line: the process id, then the milliseconds from the start until the window is there, until it
   shows two colours, and until it is readable, and the processor time of all processes until PATIENCE after that, in
   milliseconds. Then waits for a line of input, and prints the processor time of the next IDLE milliseconds. Ends the
   program when its own input ends.

   Readable is the first frame in which the text has the contrast that it has at last: nearly every pixel that stands
   out from the background in the last frame has nearly its last brightness. */
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <sys/wait.h>
#include <unistd.h>

#include "processor_time.h"

enum { width = 800, height = 600, rowStep = 3, rows = height / rowStep, pixels = width * rows };
enum { interval = 3000 /* microseconds */, settled = 6000, patience = 3000, longest = 60000, mostFrames = 20000 };

typedef struct {
    double time;           /* milliseconds since the start */
    unsigned char* bright; /* of every rowStep-th row */
} Frame;

static Frame frames[mostFrames];
static int frameCount = 0;

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

static XImage* sharedImage(Display* display, XShmSegmentInfo* segment) {
    const int screen = DefaultScreen(display);
    XImage* image = XShmCreateImage(display, DefaultVisual(display, screen), (unsigned)DefaultDepth(display, screen),
                                    ZPixmap, NULL, segment, width, height);
    segment->shmid = shmget(IPC_PRIVATE, (size_t)(image->bytes_per_line * height), IPC_CREAT | 0600);
    segment->shmaddr = image->data = shmat(segment->shmid, NULL, 0);
    segment->readOnly = False;
    XShmAttach(display, segment);
    XSync(display, False);
    shmctl(segment->shmid, IPC_RMID, NULL); /* it goes with its last user */
    return image;
}

static void readBrightness(const XImage* image, unsigned char* bright) {
    for (int row = 0; row < rows; ++row) {
        const unsigned char* pixel =
            (const unsigned char*)image->data + (size_t)(row * rowStep) * (size_t)image->bytes_per_line;
        for (int x = 0; x < width; ++x, pixel += 4) {
            *bright++ = (unsigned char)((pixel[0] + 5 * pixel[1] + 2 * pixel[2]) / 8); /* blue, green, red */
        }
    }
}

/* Keeps what the window shows, when that is something new. */
static void keepFrame(const XImage* image, double time) {
    unsigned char* bright = malloc(pixels);
    readBrightness(image, bright);
    if (frameCount == mostFrames || (frameCount > 0 && !memcmp(frames[frameCount - 1].bright, bright, pixels))) {
        free(bright);
        return;
    }
    frames[frameCount++] = (Frame){time, bright};
}

static int hasTwoColours(const unsigned char* bright) {
    for (int i = 1; i < pixels; ++i) {
        if (bright[i] != bright[0]) return 1;
    }
    return 0;
}

static int mostFrequent(const unsigned char* bright) {
    int counts[256] = {0}, most = 0;
    for (int i = 0; i < pixels; ++i) ++counts[bright[i]];
    for (int i = 1; i < 256; ++i) most = counts[i] > counts[most] ? i : most;
    return most;
}

static int isReadable(const unsigned char* bright, const unsigned char* last) {
    const int background = mostFrequent(last);
    int contrast = 0, text = 0, right = 0;
    for (int i = 0; i < pixels; ++i)
        contrast = abs(last[i] - background) > contrast ? abs(last[i] - background) : contrast;
    for (int i = 0; i < pixels; ++i) {
        if (abs(last[i] - background) * 5 < contrast * 2) continue;
        ++text;
        right += abs(bright[i] - last[i]) * 16 <= contrast;
    }
    return text > 0 && right * 100 >= text * 97;
}

/* The first frame for which this holds; the time is 0 when there is none. */
static double firstPaint(void) {
    for (int i = 0; i < frameCount; ++i) {
        if (hasTwoColours(frames[i].bright)) return frames[i].time;
    }
    return 0;
}

static double readable(void) {
    for (int i = 0; i < frameCount; ++i) {
        if (isReadable(frames[i].bright, frames[frameCount - 1].bright)) return frames[i].time;
    }
    return 0;
}

/* A window may go between two questions about it; that is no reason to end. */
static int ignoreError(Display* display, XErrorEvent* error) {
    (void)display, (void)error;
    return 0;
}

int main(int argc, char** argv) {
    Display* display = XOpenDisplay(NULL);
    if (argc < 3 || display == NULL) return 2;
    XSetErrorHandler(ignoreError);
    XShmSegmentInfo segment;
    XImage* image = sharedImage(display, &segment);
    const double start = milliseconds();
    const pid_t child = fork();
    if (child == 0) {
        setpgid(0, 0);
        execv(argv[2], argv + 2);
        _exit(127);
    }
    setpgid(child, child);
    ProcessorTimes times = {0};
    double shown = 0, painted = 0, now = 0, lastTime = 0;
    while (now < longest && (painted == 0 || now < painted + settled)) {
        now = milliseconds() - start;
        const Window window = shownWindow(display);
        if (window != None && shown == 0) shown = now;
        if (window != None && XShmGetImage(display, window, image, 0, 0, AllPlanes)) keepFrame(image, now);
        if (painted == 0 && frameCount > 0 && hasTwoColours(frames[frameCount - 1].bright)) painted = now;
        if (now - lastTime > 20) noteProcessorTime(&times, child, lastTime = now);
        usleep(interval);
    }
    const double read = readable();
    for (; now < read + patience; now = milliseconds() - start) usleep(interval);
    noteProcessorTime(&times, child, now);
    printf("%d %.1f %.1f %.1f %.2f\n", child, shown, firstPaint(), read, processorTimeAt(&times, read + patience));
    fflush(stdout);

    while (getchar() != '\n' && !feof(stdin)) continue;
    noteProcessorTime(&times, child, milliseconds() - start);
    const double before = times.total;
    usleep((useconds_t)(atof(argv[1]) * 1000));
    noteProcessorTime(&times, child, milliseconds() - start);
    printf("%.2f\n", times.total - before);
    fflush(stdout);
    while (getchar() != EOF) continue;
    kill(-child, SIGTERM);
    waitpid(child, NULL, 0);
    return 0;
}
