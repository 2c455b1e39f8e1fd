#include "app/przerwanie.h"

#include <cerrno>
#include <csignal>
#include <cstring>

#include <unistd.h>

namespace przerwanie {
namespace {

std::atomic<bool> g_zazadane{false};
static_assert(std::atomic<bool>::is_always_lock_free, "the handler may touch nothing else");

// Only what may be called inside a signal handler.
void Obsluz(int /*sygnal*/) {
  constexpr char kPierwszy[] = "\nPrzerywanie: program skończy bieżący rekord i zapisze, co zrobił.\n";
  constexpr char kNastepny[] = "\nPrzerywanie już trwa, proszę czekać.\n";
  const int zachowane = errno;
  const char* tekst = g_zazadane.exchange(true) ? kNastepny : kPierwszy;
  [[maybe_unused]] const ssize_t napisano = write(STDERR_FILENO, tekst, std::strlen(tekst));
  errno = zachowane;
}

void Ustaw(int sygnal, void (*obsluga)(int)) {
  struct sigaction opis {};
  opis.sa_handler = obsluga;
  opis.sa_flags = SA_RESTART;
  sigaction(sygnal, &opis, nullptr);
}

}  // namespace

void Przechwyc() {
  Ustaw(SIGINT, Obsluz);
  Ustaw(SIGTERM, Obsluz);
  Ustaw(SIGHUP, Obsluz);
  Ustaw(SIGPIPE, SIG_IGN);
  Ustaw(SIGXFSZ, SIG_IGN);
}

const std::atomic<bool>& Zazadane() {
  return g_zazadane;
}

}  // namespace przerwanie
