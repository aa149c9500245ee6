// The test shim: a library that end-to-end cases preload into the programs
// whose loops and waits they test (see tests/e2e/run).
//
// - sleep, usleep and nanosleep return at once and move the simulated clock,
//   HBASIM_TIME, on by the time asked for, so that the simulated library in
//   the same process sees the time pass;
// - time, gettimeofday and the real-time clock_gettime read that clock;
// - system("clear") clears nothing and prints nothing;
// - after ZEK_SHIM_CYCLES sleeps the process gets SIGINT, as from Ctrl-C,
//   and ends through its own handler.
//
// Without a usable HBASIM_TIME the clock starts at the real time. The product
// reads none of this; only tests preload it.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#define SHIM_EXPORT __attribute__((visibility("default")))

static long long g_microseconds; // the part of a second the clock is past HBASIM_TIME
static long long g_sleeps;

static int realClockGettime(clockid_t clock, struct timespec* out)
{
    typedef int (*ClockGettime)(clockid_t, struct timespec*);
    static ClockGettime real;
    if (!real)
        real = (ClockGettime)dlsym(RTLD_NEXT, "clock_gettime");
    return real ? real(clock, out) : -1;
}

static int parseSeconds(const char* text, long long* out)
{
    if (!text || !*text)
        return 0;
    char* end = NULL;
    errno = 0;
    long long value = strtoll(text, &end, 10);
    if (errno != 0 || *end != '\0' || value < 0)
        return 0;
    *out = value;
    return 1;
}

static void setSeconds(long long seconds)
{
    char text[32];
    snprintf(text, sizeof text, "%lld", seconds);
    setenv("HBASIM_TIME", text, 1);
}

// The simulated clock in whole seconds.
static long long nowSeconds(void)
{
    long long seconds;
    if (parseSeconds(getenv("HBASIM_TIME"), &seconds))
        return seconds;
    struct timespec real = {0, 0};
    realClockGettime(CLOCK_REALTIME, &real);
    setSeconds((long long)real.tv_sec);
    return (long long)real.tv_sec;
}

static long long cycleLimit(void)
{
    long long cycles;
    return parseSeconds(getenv("ZEK_SHIM_CYCLES"), &cycles) ? cycles : 0;
}

// One sleep: the clock moves on, and the last allowed cycle ends in SIGINT.
static void pass(long long microseconds)
{
    long long total = g_microseconds + microseconds;
    setSeconds(nowSeconds() + total / 1000000);
    g_microseconds = total % 1000000;
    ++g_sleeps;
    long long limit = cycleLimit();
    if (limit > 0 && g_sleeps >= limit)
        raise(SIGINT);
}

SHIM_EXPORT unsigned int sleep(unsigned int seconds)
{
    pass((long long)seconds * 1000000);
    return 0;
}

SHIM_EXPORT int usleep(useconds_t microseconds)
{
    pass((long long)microseconds);
    return 0;
}

SHIM_EXPORT int nanosleep(const struct timespec* wanted, struct timespec* left)
{
    if (!wanted || wanted->tv_nsec < 0 || wanted->tv_nsec >= 1000000000 || wanted->tv_sec < 0) {
        errno = EINVAL;
        return -1;
    }
    if (left)
        left->tv_sec = left->tv_nsec = 0;
    pass((long long)wanted->tv_sec * 1000000 + wanted->tv_nsec / 1000);
    return 0;
}

SHIM_EXPORT time_t time(time_t* out)
{
    time_t now = (time_t)nowSeconds();
    if (out)
        *out = now;
    return now;
}

SHIM_EXPORT int gettimeofday(struct timeval* restrict out, void* restrict zone)
{
    (void)zone;
    out->tv_sec = (time_t)nowSeconds();
    out->tv_usec = (suseconds_t)g_microseconds;
    return 0;
}

SHIM_EXPORT int clock_gettime(clockid_t clock, struct timespec* out)
{
    if (clock != CLOCK_REALTIME && clock != CLOCK_REALTIME_COARSE)
        return realClockGettime(clock, out);
    out->tv_sec = (time_t)nowSeconds();
    out->tv_nsec = (long)(g_microseconds * 1000);
    return 0;
}

SHIM_EXPORT int system(const char* command)
{
    if (command && strcmp(command, "clear") == 0)
        return 0;
    typedef int (*System)(const char*);
    static System real;
    if (!real)
        real = (System)dlsym(RTLD_NEXT, "system");
    return real ? real(command) : -1;
}
