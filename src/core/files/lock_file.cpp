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

std::string thisProcess() {
    return thisHost() + ':' + std::to_string(::getpid());
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

/// Only one instance at a time takes a stale link away: another one could take the lock between
/// the look and the deed, and would lose it.
void takeAway(const FileDescriptor& folder, const std::string& link, const std::string& writer) {
    const std::string taking = link + "-stale";
    const auto remove = [&](const std::string& name) {
        retried([&] { return ::unlinkat(folder.get(), name.c_str(), 0); });
    };
    if (::symlinkat(thisProcess().c_str(), folder.get(), taking.c_str()) != 0) {
        if (isDeadHere(readLink(folder, taking)))
            remove(taking);
        return;
    }
    if (readLink(folder, link) == writer)
        remove(link);
    remove(taking);
}

} // namespace

LockAnswer LockFile::take(const FileDescriptor& folder, const std::string& name) {
    release();
    const std::string link = linkNameFor(name);
    const std::string self = thisProcess();
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
