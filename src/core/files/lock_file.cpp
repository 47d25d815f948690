#include "core/files/lock_file.h"

#include "core/base/fnv_hash.h"

#include <array>
#include <charconv>
#include <climits>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr std::time_t LongestWork = 600; // seconds

/// A hash, for a name may be as long as names can be.
std::string linkNameFor(const std::string& name) {
    FnvHash hash;
    hash.add(name);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), ".tessaly-%016llx.lock",
                  static_cast<unsigned long long>(hash.value()));
    return text.data();
}

std::string thisHost() {
    std::array<char, HOST_NAME_MAX + 1> name{};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

/// Where a link leads; empty when there is none.
std::string readLink(const FileDescriptor& folder, const std::string& link) {
    std::array<char, PATH_MAX> target{};
    const auto size = retried(
        [&] { return ::readlinkat(folder.get(), link.c_str(), target.data(), target.size()); });
    return {target.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
}

bool isDeadHere(const std::string& writer) {
    const std::string host = thisHost() + ':';
    pid_t process = 0;
    if (!writer.starts_with(host))
        return false;
    const auto read = std::from_chars(&writer[host.size()], writer.data() + writer.size(), process);
    return read.ec == std::errc() && process > 0 && ::kill(process, 0) != 0 && errno == ESRCH;
}

bool isStale(const FileDescriptor& folder, const std::string& link, const std::string& writer) {
    struct stat status {};
    return isDeadHere(writer) ||
           (::fstatat(folder.get(), link.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
            status.st_mtime + LongestWork < std::time(nullptr));
}

/// Another instance may take a stale link away at the same moment and leave its own, which is put
/// back then.
void takeAway(const FileDescriptor& folder, const std::string& link, const std::string& writer) {
    const std::string aside = link + '-' + std::to_string(::getpid());
    if (::renameat(folder.get(), link.c_str(), folder.get(), aside.c_str()) != 0)
        return;
    if (readLink(folder, aside) != writer)
        retried(
            [&] { return ::linkat(folder.get(), aside.c_str(), folder.get(), link.c_str(), 0); });
    ::unlinkat(folder.get(), aside.c_str(), 0);
}

} // namespace

LockAnswer LockFile::take(const FileDescriptor& folder, const std::string& name) {
    release();
    const std::string link = linkNameFor(name);
    const std::string self = thisHost() + ':' + std::to_string(::getpid());
    if (retried([&] { return ::symlinkat(self.c_str(), folder.get(), link.c_str()); }) == 0) {
        m_folder = &folder;
        m_link = link;
        return LockAnswer::Taken;
    }
    if (errno != EEXIST)
        return LockAnswer::Unknown;
    const std::string writer = readLink(folder, link);
    if (!writer.empty() && isStale(folder, link, writer))
        takeAway(folder, link, writer);
    return LockAnswer::Busy;
}

void LockFile::release() {
    if (m_folder)
        retried([&] { return ::unlinkat(m_folder->get(), m_link.c_str(), 0); });
    m_folder = nullptr;
}

} // namespace tessaly
