/* Runs one program and prints its peak resident memory in KiB and its exit
 * status. It is written in C and kept tiny on purpose: the kernel folds the
 * high-water mark of the process image that calls exec into the child's
 * figure, so a large parent (a Python harness, say) would inflate it. */
#include <fcntl.h>
#include <stdio.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc < 2) {
        fprintf(stderr, "usage: bench_peak PROGRAM [ARGUMENTS]\n");
        return 2;
    }
    pid_t const pid = fork();
    if (pid < 0) {
        perror("bench_peak: fork");
        return 2;
    }
    if (pid == 0) {
        int const null = open("/dev/null", O_RDWR);
        if (null >= 0) {
            dup2(null, 0);
            dup2(null, 1);
            dup2(null, 2);
        }
        execv(argv[1], argv + 1);
        _exit(127);
    }
    int status = 0;
    struct rusage usage;
    if (wait4(pid, &status, 0, &usage) < 0) {
        perror("bench_peak: wait4");
        return 2;
    }
    int const code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    printf("%ld %d\n", usage.ru_maxrss, code);
    return 0;
}
