/* For LD_PRELOAD: lets one of the calls that change something below a folder fail, or ends the program before it.
 *   FAILING_FOLDER  the folder          FAILING_CALL   which call, from 1; none without it
 *   FAILING_ERROR   its errno; 0 kills  FAILING_COUNT  a file that gets the number of such calls at the end */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

static long calls;

/* Whether this call is the one to fail; errno is set then. */
static int fails(const char *path)
{
    const char *folder = getenv("FAILING_FOLDER");
    const char *chosen = getenv("FAILING_CALL");
    if (!folder || !path || strncmp(path, folder, strlen(folder)) != 0)
        return 0;
    ++calls;
    if (!chosen || calls != atol(chosen))
        return 0;
    errno = atoi(getenv("FAILING_ERROR"));
    if (errno == 0)
        raise(SIGKILL);
    return 1;
}

static int failsOn(int file)
{
    char link[64];
    char path[4096];
    const int before = errno;
    snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const ssize_t length = readlink(link, path, sizeof path - 1);
    errno = before;
    if (length < 0)
        return 0;
    path[length] = '\0';
    return fails(path);
}

__attribute__((destructor)) static void tell(void)
{
    const char *name = getenv("FAILING_COUNT");
    FILE *file = name ? fopen(name, "w") : NULL;
    if (file) {
        fprintf(file, "%ld", calls);
        fclose(file);
    }
}

#define NEXT(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))

#define OPEN(name)                                                                                                     \
    int name(const char *path, int flags, ...)                                                                         \
    {                                                                                                                  \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;                             \
        va_end(arguments);                                                                                             \
        return (flags & O_CREAT) && fails(path) ? -1 : NEXT(name)(path, flags, mode);                                  \
    }
OPEN(open)
OPEN(open64)

#define ON_FILE(result, name, parameters, arguments)                                                                   \
    result name parameters { return failsOn(file) ? -1 : NEXT(name) arguments; }
ON_FILE(ssize_t, write, (int file, const void *data, size_t size), (file, data, size))
ON_FILE(ssize_t, pwrite, (int file, const void *data, size_t size, off_t at), (file, data, size, at))
ON_FILE(ssize_t, pwrite64, (int file, const void *data, size_t size, off64_t at), (file, data, size, at))
ON_FILE(int, ftruncate, (int file, off_t size), (file, size))
ON_FILE(int, ftruncate64, (int file, off64_t size), (file, size))
ON_FILE(int, fsync, (int file), (file))
ON_FILE(int, fdatasync, (int file), (file))
ON_FILE(int, fchmod, (int file, mode_t mode), (file, mode))

#define ON_PATH(name, parameters, arguments)                                                                           \
    int name parameters { return fails(path) ? -1 : NEXT(name) arguments; }
ON_PATH(unlink, (const char *path), (path))
ON_PATH(mkdir, (const char *path, mode_t mode), (path, mode))
ON_PATH(link, (const char *from, const char *path), (from, path))
ON_PATH(rename, (const char *from, const char *path), (from, path))
