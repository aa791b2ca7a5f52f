#include "Support/ChildProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <exception>

namespace
{

std::string textOf(const std::function<std::string()> &work)
{
    try {
        return work();
    } catch (const std::exception &error) {
        return error.what();
    }
}

} // namespace

std::string inChildProcess(const std::function<std::string()> &work)
{
    int ends[2];
    if (::pipe(ends) != 0)
        return "no pipe";
    const pid_t child = ::fork();
    if (child == 0) {
        const std::string text = textOf(work);
        const bool isWritten = ::write(ends[1], text.data(), text.size()) == ssize_t(text.size());
        ::_exit(isWritten ? 0 : 1);
    }
    ::close(ends[1]);
    std::string text;
    char buffer[4096];
    for (ssize_t count = 0; (count = ::read(ends[0], buffer, sizeof buffer)) > 0;)
        text.append(buffer, std::size_t(count));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        text += " (the process did not end well)";
    return text;
}
