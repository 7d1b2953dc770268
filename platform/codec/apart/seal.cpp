#include "platform/codec/apart/seal.h"

#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/values/limits.h"

namespace zentrox::apart {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool watched = true;
#elif defined(__has_feature)
constexpr bool watched = __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
constexpr bool watched = false;
#endif

// The calls of another kind of program on the same machine have other numbers.
#if defined(__x86_64__)
constexpr std::uint32_t machine = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t machine = AUDIT_ARCH_AARCH64;
#elif defined(__i386__)
constexpr std::uint32_t machine = AUDIT_ARCH_I386;
#elif defined(__arm__)
constexpr std::uint32_t machine = AUDIT_ARCH_ARM;
#elif defined(__riscv) && __riscv_xlen == 64
constexpr std::uint32_t machine = AUDIT_ARCH_RISCV64;
#else
constexpr std::uint32_t machine = 0;  // no filter is known to be right
#endif

constexpr std::uint32_t otherNumbers = 0x40000000;  // of a second table on x86-64

// What reckoning takes, and what the sanitizers look at.
constexpr long harmless[] = {
    SYS_read,
    SYS_pread64,
    SYS_lseek,
    SYS_munmap,
    SYS_mremap,
    SYS_madvise,
    SYS_brk,
    SYS_futex,
    SYS_clock_gettime,
    SYS_sched_yield,
    SYS_getrandom,
    SYS_gettid,
    SYS_getpid,
    SYS_sigaltstack,
    SYS_rt_sigprocmask,
    SYS_rt_sigreturn,
    SYS_restart_syscall,
    SYS_exit,
    SYS_exit_group,
#ifdef SYS__llseek
    SYS__llseek,
#endif
#ifdef SYS_clock_gettime64
    SYS_clock_gettime64,
#endif
#ifdef SYS_futex_time64
    SYS_futex_time64,
#endif
};

class Filter {
public:
    Filter() {
        load(offsetof(seccomp_data, arch));
        jump(BPF_JEQ, machine, 1, 0);
        answer(SECCOMP_RET_KILL_PROCESS);
        load(offsetof(seccomp_data, nr));
        if (machine == AUDIT_ARCH_X86_64) {
            jump(BPF_JGE, otherNumbers, 0, 1);
            answer(refused);
        }
    }
    void allow(long call) {
        jump(BPF_JEQ, static_cast<std::uint32_t>(call), 0, 1);
        answer(SECCOMP_RET_ALLOW);
    }
    // Allows the call if its argument has none of these bits.
    void allowWithout(long call, unsigned argument, std::uint32_t bits) {
        jump(BPF_JEQ, static_cast<std::uint32_t>(call), 0, 4);
        load(lowWord(argument));
        jump(BPF_JSET, bits, 1, 0);
        answer(SECCOMP_RET_ALLOW);
        answer(refused);
    }
    // Allows the call if its first argument is this.
    void allowOn(long call, int file) {
        jump(BPF_JEQ, static_cast<std::uint32_t>(call), 0, 4);
        load(lowWord(0));
        jump(BPF_JEQ, static_cast<std::uint32_t>(file), 0, 1);
        answer(SECCOMP_RET_ALLOW);
        load(offsetof(seccomp_data, nr));
    }
    bool set() {
        answer(refused);
        const sock_fprog program{static_cast<unsigned short>(code_.size()), code_.data()};
        return prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
    }

private:
    static constexpr std::uint32_t refused = SECCOMP_RET_ERRNO | EPERM;

    static std::size_t lowWord(unsigned argument) {
        const std::size_t at = offsetof(seccomp_data, args) + argument * sizeof(std::uint64_t);
        return __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__ ? at : at + sizeof(std::uint32_t);
    }
    void load(std::size_t at) { code_.push_back({BPF_LD | BPF_W | BPF_ABS, 0, 0, static_cast<std::uint32_t>(at)}); }
    void jump(unsigned test, std::uint32_t value, std::uint8_t ifTrue, std::uint8_t ifFalse) {
        code_.push_back({static_cast<std::uint16_t>(BPF_JMP | BPF_K | test), ifTrue, ifFalse, value});
    }
    void answer(std::uint32_t what) { code_.push_back({BPF_RET | BPF_K, 0, 0, what}); }

    std::vector<sock_filter> code_;
};

bool setFilter(bool takesFiles) {
    if (machine == 0) return false;
    Filter filter;
    for (const long call : harmless) filter.allow(call);
    filter.allowOn(SYS_write, channelPlace);
    if (watched) filter.allowOn(SYS_write, STDERR_FILENO);
    if (takesFiles) {
        filter.allowOn(SYS_recvmsg, channelPlace);
        filter.allow(SYS_close);
    }
#ifdef SYS_mmap
    filter.allowWithout(SYS_mmap, 2, PROT_EXEC);
#endif
#ifdef SYS_mmap2
    filter.allowWithout(SYS_mmap2, 2, PROT_EXEC);
#endif
    filter.allowWithout(SYS_mprotect, 2, PROT_EXEC);
    return filter.set();
}

void bound(decltype(RLIMIT_CORE) what, std::uint64_t most) {
    const rlimit limit{most, most};
    setrlimit(what, &limit);
}

}  // namespace

bool seal(bool takesFiles) {
    bound(RLIMIT_CORE, 0);
    bound(RLIMIT_NPROC, 0);
    bound(RLIMIT_NOFILE, takesFiles ? 8 : 0);
    bound(RLIMIT_CPU, limits::workerSeconds);
    if (!watched) {  // sanitizers reserve terabytes, and write down what they find
        bound(RLIMIT_DATA, limits::workerBytes);
        bound(RLIMIT_FSIZE, 0);
    }
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && setFilter(takesFiles);
}

}  // namespace zentrox::apart
