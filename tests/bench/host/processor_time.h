/* Processor time of a process group, over time. */
#pragma once
#include <ctype.h>
#include <dirent.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/types.h>
#include <time.h>

enum { mostProcesses = 64, mostNotes = 8192 };

typedef struct {
    pid_t pids[mostProcesses];
    double used[mostProcesses]; /* milliseconds; of a process that has ended, as it was seen last */
    int processes;
    double times[mostNotes], totals[mostNotes];
    int notes;
    double total; /* milliseconds, of all of them */
} ProcessorTimes;

static double millisecondsOf(clockid_t clock) {
    struct timespec now;
    if (clock_gettime(clock, &now) != 0) return -1;
    return (double)now.tv_sec * 1e3 + (double)now.tv_nsec / 1e6;
}

static double milliseconds(void) { return millisecondsOf(CLOCK_MONOTONIC); }

static int isInGroup(const char* pid, pid_t group) {
    char path[64], text[512];
    snprintf(path, sizeof path, "/proc/%.20s/stat", pid);
    FILE* file = fopen(path, "r");
    if (file == NULL) return 0;
    text[fread(text, 1, sizeof text - 1, file)] = '\0';
    fclose(file);
    const char* name = strrchr(text, ')');
    int parent, itsGroup;
    return name != NULL && sscanf(name, ") %*c %d %d", &parent, &itsGroup) == 2 && itsGroup == group;
}

static void noteProcess(ProcessorTimes* times, pid_t pid) {
    clockid_t clock;
    if (clock_getcpuclockid(pid, &clock) != 0) return;
    const double used = millisecondsOf(clock);
    int place = 0;
    while (place < times->processes && times->pids[place] != pid) ++place;
    if (used < 0 || place == mostProcesses) return;
    if (place == times->processes) times->processes++;
    times->pids[place] = pid;
    times->used[place] = used;
}

/* Notes what all processes of the group have used so far, at this time. */
static void noteProcessorTime(ProcessorTimes* times, pid_t group, double now) {
    DIR* all = opendir("/proc");
    for (struct dirent* each; all != NULL && (each = readdir(all)) != NULL;) {
        if (isdigit((unsigned char)each->d_name[0]) && isInGroup(each->d_name, group)) {
            noteProcess(times, (pid_t)atoi(each->d_name));
        }
    }
    if (all != NULL) closedir(all);
    times->total = 0;
    for (int i = 0; i < times->processes; ++i) times->total += times->used[i];
    if (times->notes == mostNotes) return;
    times->times[times->notes] = now;
    times->totals[times->notes++] = times->total;
}

/* What had been used at a time, between two notes. */
static double processorTimeAt(const ProcessorTimes* times, double time) {
    int next = 0;
    while (next < times->notes && times->times[next] < time) ++next;
    if (next == 0 || next == times->notes) return times->total;
    const double part = (time - times->times[next - 1]) / (times->times[next] - times->times[next - 1]);
    return times->totals[next - 1] + part * (times->totals[next] - times->totals[next - 1]);
}
