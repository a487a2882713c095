#include "reliability/small_disk.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <grp.h>
#include <sched.h>
#include <stdexcept>
#include <sys/mount.h>
#include <unistd.h>

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFiller = "full.filler";

/// Lets the process mount: for itself alone, and as its own superuser if it is nobody's.
bool EnterNameSpace() {
  if (::unshare(CLONE_NEWNS) == 0) return true;
  const std::string user = "0 " + std::to_string(::geteuid()) + " 1";
  const std::string group = "0 " + std::to_string(::getegid()) + " 1";
  if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  std::ofstream("/proc/self/setgroups") << "deny";
  std::ofstream("/proc/self/uid_map") << user;
  std::ofstream("/proc/self/gid_map") << group;
  return ::geteuid() == 0;
}

std::string Reason() {
  return std::strerror(errno);
}

}  // namespace

std::string SmallDisk::Mount(int pages, int files) {
  if (!EnterNameSpace()) return "no name space for mounts: " + Reason();
  if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return "no mounts: " + Reason();
  const std::string options = "size=" + std::to_string(static_cast<std::size_t>(pages) * kPage) +
                              ",nr_inodes=" + std::to_string(files);
  if (::mount("tmpfs", folder_.c_str(), "tmpfs", 0, options.c_str()) != 0) return "no tmpfs: " + Reason();
  return "";
}

void SmallDisk::LeaveRoomFor(int pages) {
  const int file = ::open((folder_ / kFiller).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (file < 0) throw std::runtime_error("no filler");
  const std::string page(kPage, 'x');
  off_t size = 0;
  for (ssize_t count = 1; count > 0;) {
    count = ::write(file, page.data(), page.size());
    if (count > 0) size += count;
  }
  const off_t room = static_cast<off_t>(kPage) * pages;
  const bool is_filled = errno == ENOSPC && size >= room && ::ftruncate(file, size - room) == 0;
  ::close(file);
  if (!is_filled) throw std::runtime_error("the disk does not fill");
}

void SmallDisk::Empty() {
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) fs::remove_all(entry.path());
}

bool SmallDisk::MakeReadOnly() {
  return ::mount(nullptr, folder_.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

bool BecomeAnOrdinaryUser(const fs::path& folder) {
  if (::geteuid() != 0) return true;
  constexpr uid_t kNobody = 65534;
  if (::chown(folder.c_str(), kNobody, kNobody) != 0) return false;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (::chown(entry.path().c_str(), kNobody, kNobody) != 0) return false;
  }
  return ::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0;
}

}  // namespace tavrel::test
