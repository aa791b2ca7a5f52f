#include "Exchange/olSandbox.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdint>
#include <initializer_list>
#include <memory>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#define OL_IS_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define OL_IS_SANITIZED 1
#endif
#endif

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olSandbox)
};

/// Lower limits that are there already stay.
template <class Resource> void limit(Resource resource, rlim_t value)
{
    rlimit limits{};
    if (getrlimit(resource, &limits) != 0 || limits.rlim_max < value)
        return;
    limits = {value, value};
    setrlimit(resource, &limits);
}

void limitMemory()
{
#ifndef OL_IS_SANITIZED
    // The sanitizers reserve terabytes that they never use.
    limit(RLIMIT_AS, rlim_t(sysconf(_SC_PHYS_PAGES)) * rlim_t(sysconf(_SC_PAGESIZE)) / 2);
#endif
    limit(RLIMIT_CORE, 0);
}

/// No file may be opened for writing, made, moved or removed anywhere.
bool restrictFiles()
{
    landlock_ruleset_attr rules{};
    rules.handled_access_fs = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_EXECUTE |
                              LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE |
                              LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                              LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
                              LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;
    const long set = syscall(SYS_landlock_create_ruleset, &rules, sizeof(rules), 0);
    if (set < 0)
        return false;
    const bool isRestricted = syscall(SYS_landlock_restrict_self, set, 0) == 0;
    close(int(set));
    return isRestricted;
}

/// Without these a reader of models can do all that it has to.
const char *const refusedCalls[] = {"accept",
                                    "accept4",
                                    "add_key",
                                    "bind",
                                    "bpf",
                                    "chmod",
                                    "chown",
                                    "chroot",
                                    "connect",
                                    "creat",
                                    "delete_module",
                                    "execve",
                                    "execveat",
                                    "fchmodat",
                                    "fchownat",
                                    "finit_module",
                                    "fork",
                                    "init_module",
                                    "io_uring_enter",
                                    "io_uring_register",
                                    "io_uring_setup",
                                    "ioperm",
                                    "iopl",
                                    "kexec_load",
                                    "keyctl",
                                    "kill",
                                    "lchown",
                                    "link",
                                    "linkat",
                                    "listen",
                                    "mkdir",
                                    "mkdirat",
                                    "mknod",
                                    "mknodat",
                                    "mount",
                                    "move_mount",
                                    "name_to_handle_at",
                                    "open_by_handle_at",
                                    "open_tree",
                                    "perf_event_open",
                                    "pidfd_getfd",
                                    "pidfd_send_signal",
                                    "pivot_root",
                                    "process_vm_readv",
                                    "process_vm_writev",
                                    "ptrace",
                                    "rename",
                                    "renameat",
                                    "renameat2",
                                    "request_key",
                                    "rmdir",
                                    "rt_sigqueueinfo",
                                    "rt_tgsigqueueinfo",
                                    "sendmsg",
                                    "sendto",
                                    "setns",
                                    "setxattr",
                                    "socket",
                                    "socketpair",
                                    "symlink",
                                    "symlinkat",
                                    "tkill",
                                    "truncate",
                                    "umount2",
                                    "unlink",
                                    "unlinkat",
                                    "unshare",
                                    "userfaultfd",
                                    "vfork"};

bool refuse(scmp_filter_ctx filter, const char *name, const std::initializer_list<scmp_arg_cmp> &conditions = {},
            int error = EACCES)
{
    const int call = seccomp_syscall_resolve_name(name);
    // A call that neither kernel nor library knows needs no rule.
    if (call == __NR_SCMP_ERROR)
        return true;
    return seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(std::uint32_t(error)), call, unsigned(conditions.size()),
                                  conditions.size() == 0 ? nullptr : conditions.begin()) == 0;
}

bool refuseCalls()
{
    const std::unique_ptr<void, void (*)(scmp_filter_ctx)> owned(seccomp_init(SCMP_ACT_ALLOW), seccomp_release);
    scmp_filter_ctx filter = owned.get();
    if (!filter)
        return false;
    bool isComplete = true;
    for (const char *call : refusedCalls)
        isComplete = refuse(filter, call) && isComplete;
    for (const int mode : {O_WRONLY, O_RDWR}) {
        const auto writes = scmp_datum_t(mode);
        isComplete = refuse(filter, "open", {SCMP_A1_64(SCMP_CMP_MASKED_EQ, O_ACCMODE, writes)}) && isComplete;
        isComplete = refuse(filter, "openat", {SCMP_A2_64(SCMP_CMP_MASKED_EQ, O_ACCMODE, writes)}) && isComplete;
    }
    // Threads are wanted, processes are not; what cannot be looked into is not there, and the C library does without.
    isComplete = refuse(filter, "clone", {SCMP_A0_64(SCMP_CMP_MASKED_EQ, CLONE_THREAD, 0)}) && isComplete;
    isComplete = refuse(filter, "clone3", {}, ENOSYS) && isComplete;
    isComplete = refuse(filter, "openat2", {}, ENOSYS) && isComplete;
    // One that fails may still end itself.
    isComplete = refuse(filter, "tgkill", {SCMP_A0_64(SCMP_CMP_NE, scmp_datum_t(getpid()), 0)}) && isComplete;
    return isComplete && seccomp_load(filter) == 0;
}

} // namespace

QStringList olSandbox::enter()
{
    QStringList missing;
    limitMemory();
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    if (!restrictFiles())
        missing << Words::tr("The system has no Landlock; models are read without it.");
    if (!refuseCalls())
        missing << Words::tr("The system takes no seccomp filter; models are read without it.");
    return missing;
}
