// Loaded before the C library: a disk that does not confirm what was written to files whose path ends with
// ZEPSUTY_FSYNC, but for the first ZEPSUTY_FSYNC_PO times.

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>
#include <string_view>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

int Utrwal(int deskryptor, long polecenie) {
  std::array<char, PATH_MAX> sciezka{};
  const std::string dowiazanie = "/proc/self/fd/" + std::to_string(deskryptor);
  const char* zepsute = std::getenv("ZEPSUTY_FSYNC");
  const char* po = std::getenv("ZEPSUTY_FSYNC_PO");
  static int ktory = 0;
  if (zepsute != nullptr && po != nullptr &&
      readlink(dowiazanie.c_str(), sciezka.data(), sciezka.size() - 1) > 0 &&
      std::string_view(sciezka.data()).ends_with(zepsute) && ktory++ >= std::atoi(po)) {
    errno = EIO;
    return -1;
  }
  return static_cast<int>(syscall(polecenie, deskryptor));
}

}  // namespace

extern "C" int fsync(int deskryptor) {
  return Utrwal(deskryptor, SYS_fsync);
}
extern "C" int fdatasync(int deskryptor) {
  return Utrwal(deskryptor, SYS_fdatasync);
}
