// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "filesupport/Paths.h"
#include "filesupport/SystemFile.h"
#include "filesupport/ThrowFileError.h"

namespace lumcore::filesupport::system {

namespace {

constexpr const char* kOpenKey = "$$$/lumcore/filesupport/Error/Open=Cannot open \"@0\": @1";
constexpr const char* kWriteKey = "$$$/lumcore/filesupport/Error/Write=Cannot write \"@0\": @1";
constexpr const char* kSaveKey = "$$$/lumcore/filesupport/Error/Save=Cannot save \"@0\": @1";
constexpr const char* kNoFileKey =
    "$$$/lumcore/filesupport/Error/NotAFile=Cannot save \"@0\": Not a regular file";

// The kernel takes no more than this in one call.
constexpr std::size_t kMostBytesPerCall = 1u << 30;
constexpr mode_t kPermissionBits = 07777;

// Writing behind the limit for file sizes raises a signal that would end the process. While this
// stands, the signal is held back in this thread and thrown away, and the write says EFBIG.
class StHoldFileSizeSignal {
 public:
  StHoldFileSizeSignal() {
    sigemptyset(&mSignal);
    sigaddset(&mSignal, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &mSignal, &mOldMask);
  }
  ~StHoldFileSizeSignal() {
    if (sigismember(&mOldMask, SIGXFSZ) == 1) return;
    const int error = errno;
    const timespec now = {};
    while (sigtimedwait(&mSignal, nullptr, &now) == -1 && errno == EINTR) {
    }
    pthread_sigmask(SIG_SETMASK, &mOldMask, nullptr);
    errno = error;
  }
  StHoldFileSizeSignal(const StHoldFileSizeSignal&) = delete;
  StHoldFileSizeSignal& operator=(const StHoldFileSizeSignal&) = delete;

 private:
  sigset_t mSignal;
  sigset_t mOldMask;
};

// The system would stop at a zero in the middle and take another file than the one named.
bool IsPath(const std::string& inPath) {
  return inPath.find('\0') == inPath.npos;
}

int Open(const char* inKey, const std::string& inPath, int inFlags, mode_t inMode = 0) {
  if (!IsPath(inPath)) ThrowSystemError(inKey, inPath, EINVAL);
  int number;
  do {
    number = ::open(inPath.c_str(), inFlags | O_CLOEXEC, inMode);
  } while (number == -1 && errno == EINTR);
  if (number == -1) ThrowSystemError(inKey, inPath, errno);
  return number;
}

bool GetStatus(const std::string& inPath, struct stat& outStatus) {
  return IsPath(inPath) && ::stat(inPath.c_str(), &outStatus) == 0;
}

// 0, or the error. A file system that knows no flush has nothing to wait for.
int Flush(int inNumber) {
  int result;
  do {
    result = ::fsync(inNumber);
  } while (result == -1 && errno == EINTR);
  if (result == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP) return 0;
  return errno;
}

// What a chain of links ends at, whether it exists or not.
std::string FollowLinks(const std::string& inPath) {
  constexpr int kMostLinks = 40;  // as many as the kernel follows
  namespace fs = std::filesystem;
  fs::path path = paths::ToSystem(inPath);
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code code;
    if (!fs::is_symlink(path, code)) return paths::FromSystem(path);
    const fs::path target = fs::read_symlink(path, code);
    if (code) ThrowSystemError(kSaveKey, inPath, code.value());
    path = path.parent_path() / target;
  }
  ThrowSystemError(kSaveKey, inPath, ELOOP);
}

constexpr std::string_view kTemporaryPrefix = ".lumcore-save-";
constexpr std::string_view kOldPrefix = ".lumcore-old-";
constexpr std::size_t kTemporaryDigits = 16;

// Of one length, so that a long name of the user's does not become too long by it.
std::string RandomName(std::string_view inPrefix) {
  unsigned long long number = 0;
  while (::getrandom(&number, sizeof number, 0) == -1 && errno == EINTR) {
  }
  char digits[kTemporaryDigits + 1];
  std::snprintf(digits, sizeof digits, "%016llx", number);
  return std::string(inPrefix) + digits;
}

bool IsTemporaryName(std::string_view inName) {
  return inName.size() == kTemporaryPrefix.size() + kTemporaryDigits &&
         inName.substr(0, kTemporaryPrefix.size()) == kTemporaryPrefix &&
         inName.find_first_not_of("0123456789abcdef", kTemporaryPrefix.size()) == inName.npos;
}

// A new file with a name that nobody can foresee. It is deleted unless it was renamed. As long as
// it is in use it is locked, so that what a process has left behind that was ended in the middle is
// known by its not being locked.
class TemporaryFile {
 public:
  TemporaryFile(const std::string& inFolder, const std::string& inTarget, mode_t inMode) {
    if (!IsPath(inFolder)) ThrowSystemError(kSaveKey, inTarget, EINVAL);
    constexpr int kTries = 100;
    for (int tries = 0; tries < kTries; ++tries) {
      mPath = paths::Join(inFolder, RandomName(kTemporaryPrefix));
      mNumber = ::open(mPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, inMode);
      if (mNumber != -1) {
        if (Lock()) return;
        const int error = errno;
        ::unlink(mPath.c_str());
        ::close(mNumber);
        errno = error;
      }
      if (errno != EEXIST && errno != EINTR) break;
    }
    ThrowSystemError(kSaveKey, inTarget, errno);
  }
  ~TemporaryFile() {
    if (!mPath.empty()) ::unlink(mPath.c_str());
    ::close(mLock);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  int GetNumber() const { return mNumber; }
  void RenameTo(const std::string& inTarget, const std::string& inNamedPath) {
    if (::rename(mPath.c_str(), inTarget.c_str()) != 0) {
      ThrowSystemError(kSaveKey, inNamedPath, errno);
    }
    mPath.clear();
  }

 private:
  // False, with the error, where there is no second number for the file, or where another process
  // has cleaned it away in the moment before it was locked. A file system that knows no locks
  // grants none to the cleaner either.
  bool Lock() {
    mLock = ::fcntl(mNumber, F_DUPFD_CLOEXEC, 0);
    if (mLock == -1) return false;
    while (::flock(mLock, LOCK_EX) == -1 && errno == EINTR) {
    }
    struct stat status = {};
    if (::fstat(mLock, &status) == 0 && status.st_nlink > 0) return true;
    ::close(std::exchange(mLock, -1));
    errno = EEXIST;
    return false;
  }

  std::string mPath;
  int mNumber = -1;
  int mLock = -1;  // the same open file, which stays locked until both numbers are closed
};

// Deletes a file that a save has left behind which did not come to its end.
void RemoveIfLeftOver(const std::string& inPath) {
  const int number = ::open(inPath.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (number == -1) return;
  struct stat status = {};
  const bool isOurs =
      ::fstat(number, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
  if (isOurs && ::flock(number, LOCK_EX | LOCK_NB) == 0) ::unlink(inPath.c_str());
  ::close(number);
}

// What cannot be listed or deleted stays: it is in nobody's way.
void RemoveLeftOvers(const std::string& inFolder) {
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(inFolder.c_str()), &::closedir);
  if (!folder) return;
  while (const dirent* const entry = ::readdir(folder.get())) {
    if (IsTemporaryName(entry->d_name)) RemoveIfLeftOver(paths::Join(inFolder, entry->d_name));
  }
}

// A file that is deleted as far as its own name goes. It comes back under that name, in the place
// of what has been written there so far, unless it is given up.
class SetAside {
 public:
  explicit SetAside(const std::string& inPath) : mPath(inPath) {
    struct stat status = {};
    if (::lstat(inPath.c_str(), &status) != 0) {
      if (errno == ENOENT) return;
      ThrowSystemError(kSaveKey, inPath, errno);
    }
    if (S_ISDIR(status.st_mode)) ThrowSystemError(kSaveKey, inPath, EISDIR);
    if (!S_ISREG(status.st_mode) && !S_ISLNK(status.st_mode)) ThrowFileError(kNoFileKey, inPath);
    const std::string old = paths::Join(paths::Parent(inPath), RandomName(kOldPrefix));
    if (::rename(inPath.c_str(), old.c_str()) != 0) ThrowSystemError(kSaveKey, inPath, errno);
    mOld = old;
  }
  ~SetAside() {
    if (mIsReplaced) ::unlink(mPath.c_str());
    // Where even this fails, nothing is lost: the old file stays beside.
    if (!mOld.empty() && ::rename(mOld.c_str(), mPath.c_str()) != 0) return;
  }
  SetAside(const SetAside&) = delete;
  SetAside& operator=(const SetAside&) = delete;

  // From here on, what stands under the name is ours.
  void SetIsReplaced() { mIsReplaced = true; }
  void GiveUp() {
    mIsReplaced = false;
    if (!mOld.empty()) ::unlink(mOld.c_str());
    mOld.clear();
  }

 private:
  std::string mPath;
  std::string mOld;
  bool mIsReplaced = false;
};

// Owner and group are kept where the process may. Where the group cannot be kept, the new group
// gets no more than everybody has, and no bit that lends the owner's rights survives a change of
// owner.
void TakeOverPermissions(int inNumber, const struct stat& inOld, const std::string& inPath) {
  mode_t mode = inOld.st_mode & kPermissionBits;
  if (::fchown(inNumber, inOld.st_uid, inOld.st_gid) != 0) {
    struct stat own = {};
    const bool sameOwner = ::fstat(inNumber, &own) == 0 && own.st_uid == inOld.st_uid;
    if (!sameOwner) mode &= static_cast<mode_t>(~(S_ISUID | S_ISGID));
    if (::fchown(inNumber, static_cast<uid_t>(-1), inOld.st_gid) != 0) {
      mode &= static_cast<mode_t>(~(S_ISGID | S_IRWXG));
      mode |= (inOld.st_mode & S_IRWXO) << 3;
    }
  }
  if (::fchmod(inNumber, mode) != 0) ThrowSystemError(kSaveKey, inPath, errno);
}

// A failure here is no failure of the save: the new content stands, and a crash would still leave
// either the old or the new file.
void FlushFolder(const std::string& inFolder) {
  const int number = ::open(inFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (number == -1) return;
  Flush(number);
  ::close(number);
}

}  // namespace

Handle::Handle(std::intptr_t inNumber, std::string inPath)
    : mNumber(inNumber), mPath(std::move(inPath)) {}

Handle::~Handle() {
  if (IsOpen()) ::close(static_cast<int>(mNumber));
}

std::size_t Handle::ReadSome(void* outBytes, std::size_t inCount) {
  const std::size_t most = std::min(inCount, kMostBytesPerCall);
  ssize_t count;
  do {
    count = ::read(static_cast<int>(mNumber), outBytes, most);
  } while (count == -1 && errno == EINTR);
  if (count == -1) {
    ThrowSystemError("$$$/lumcore/filesupport/Error/Read=Cannot read \"@0\": @1", mPath, errno);
  }
  return static_cast<std::size_t>(count);
}

void Handle::WriteAll(const void* inBytes, std::size_t inCount) {
  const StHoldFileSizeSignal hold;
  for (const char* bytes = static_cast<const char*>(inBytes); inCount > 0;) {
    const std::size_t most = std::min(inCount, kMostBytesPerCall);
    const ssize_t count = ::write(static_cast<int>(mNumber), bytes, most);
    if (count == -1 && errno == EINTR) continue;
    if (count == -1) ThrowSystemError(kWriteKey, mPath, errno);
    bytes += count;
    inCount -= static_cast<std::size_t>(count);
  }
}

void Handle::FlushToDisk() {
  if (const int error = Flush(static_cast<int>(mNumber))) {
    ThrowSystemError(kWriteKey, mPath, error);
  }
}

void Handle::Close() {
  if (!IsOpen()) return;
  const int number = static_cast<int>(std::exchange(mNumber, -1));
  // After EINTR the number is closed all the same.
  if (::close(number) != 0 && errno != EINTR) ThrowSystemError(kWriteKey, mPath, errno);
}

std::uint64_t Handle::GetSizeHint() const {
  struct stat status = {};
  if (::fstat(static_cast<int>(mNumber), &status) != 0 || !S_ISREG(status.st_mode)) return 0;
  return static_cast<std::uint64_t>(status.st_size);
}

std::intptr_t OpenForReading(const std::string& inPath) {
  return Open(kOpenKey, inPath, O_RDONLY);
}

std::intptr_t OpenForWriting(const std::string& inPath) {
  return Open(kOpenKey, inPath, O_WRONLY | O_CREAT | O_TRUNC, 0666);
}

std::string ProgramPath() {
  constexpr const char* kLink = "/proc/self/exe";
  std::error_code code;
  const std::filesystem::path path = std::filesystem::read_symlink(kLink, code);
  if (code) {
    ThrowSystemError("$$$/lumcore/filesupport/Error/Program=Cannot find this program by \"@0\": @1",
                     kLink, code.value());
  }
  return paths::FromSystem(path);
}

std::string HomePath() {
  const char* const home = std::getenv("HOME");
  if (home && *home) return home;
  const passwd* const user = ::getpwuid(::geteuid());
  return user ? user->pw_dir : "/";
}

std::string SettingsPath() {
  // The desktop's rule: an absolute path, or the folder of that name in the user's home.
  const char* const chosen = std::getenv("XDG_CONFIG_HOME");
  if (chosen && *chosen == '/') return chosen;
  return paths::Join(HomePath(), ".config");
}

bool FileExists(const std::string& inPath) {
  struct stat status = {};
  return GetStatus(inPath, status) && !S_ISDIR(status.st_mode);
}

bool FolderExists(const std::string& inPath) {
  struct stat status = {};
  return GetStatus(inPath, status) && S_ISDIR(status.st_mode);
}

bool IsAbsent(const std::string& inPath) {
  struct stat status = {};
  if (!IsPath(inPath) || ::stat(inPath.c_str(), &status) == 0) return false;
  return errno == ENOENT || errno == ENOTDIR;
}

std::uint64_t FileSize(const std::string& inPath) {
  constexpr const char* kKey = "$$$/lumcore/filesupport/Error/Size=Cannot measure \"@0\": @1";
  struct stat status = {};
  if (!GetStatus(inPath, status)) ThrowSystemError(kKey, inPath, IsPath(inPath) ? errno : EINVAL);
  if (S_ISDIR(status.st_mode)) ThrowSystemError(kKey, inPath, EISDIR);
  return static_cast<std::uint64_t>(status.st_size);
}

void RemoveFile(const std::string& inPath) {
  constexpr const char* kKey = "$$$/lumcore/filesupport/Error/Remove=Cannot delete \"@0\": @1";
  if (!IsPath(inPath)) ThrowSystemError(kKey, inPath, EINVAL);
  if (::unlink(inPath.c_str()) != 0 && errno != ENOENT) ThrowSystemError(kKey, inPath, errno);
}

void ReplaceFile(const std::string& inPath, std::string_view inBytes) {
  if (inPath.empty()) ThrowSystemError(kSaveKey, inPath, ENOENT);
  if (!IsPath(inPath)) ThrowSystemError(kSaveKey, inPath, EINVAL);
  const std::string target = FollowLinks(inPath);
  struct stat old = {};
  const bool exists = GetStatus(target, old);
  if (exists && S_ISDIR(old.st_mode)) ThrowSystemError(kSaveKey, inPath, EISDIR);
  if (exists && !S_ISREG(old.st_mode)) {
    ThrowFileError(kNoFileKey, inPath);
  }
  // A rename asks for rights on the folder alone and would pass over a file that is
  // write-protected.
  if (exists && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
    ThrowSystemError(kSaveKey, inPath, errno);
  }

  const std::string folder = paths::Parent(target);
  // First, as the disk may be full of them.
  RemoveLeftOvers(folder);
  // Until it has the old file's permissions, nobody else may read what may be confidential.
  TemporaryFile temporary(folder, inPath, exists ? 0600 : 0666);
  Handle handle(temporary.GetNumber(), inPath);
  handle.WriteAll(inBytes.data(), inBytes.size());
  if (exists) TakeOverPermissions(temporary.GetNumber(), old, inPath);
  handle.FlushToDisk();
  handle.Close();
  temporary.RenameTo(target, inPath);
  FlushFolder(folder);
}

void RecreateFile(const std::string& inPath, std::string_view inBytes) {
  if (inPath.empty()) ThrowSystemError(kSaveKey, inPath, ENOENT);
  if (!IsPath(inPath)) ThrowSystemError(kSaveKey, inPath, EINVAL);
  SetAside old(inPath);
  Handle handle(Open(kSaveKey, inPath, O_WRONLY | O_CREAT | O_EXCL, 0666), inPath);
  old.SetIsReplaced();
  handle.WriteAll(inBytes.data(), inBytes.size());
  handle.FlushToDisk();
  handle.Close();
  old.GiveUp();
  FlushFolder(paths::Parent(inPath));
}

}  // namespace lumcore::filesupport::system
