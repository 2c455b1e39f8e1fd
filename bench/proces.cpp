#include "bench/proces.h"

#include <array>
#include <chrono>
#include <stdexcept>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void Zastap(const std::vector<std::string>& polecenie,
                         const std::vector<std::string>& srodowisko, int wyjscie) {
  for (const std::string& zmienna : srodowisko) {
    const auto znak = zmienna.find('=');
    ::setenv(zmienna.substr(0, znak).c_str(), zmienna.substr(znak + 1).c_str(), 1);
  }
  ::dup2(wyjscie, STDOUT_FILENO);
  ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
  std::vector<char*> argumenty;
  argumenty.reserve(polecenie.size() + 1);
  for (const std::string& a : polecenie) argumenty.push_back(const_cast<char*>(a.c_str()));
  argumenty.push_back(nullptr);
  ::execvp(argumenty[0], argumenty.data());
  ::_exit(127);
}

}  // namespace

Przebieg Uruchom(const std::vector<std::string>& polecenie, const std::vector<std::string>& srodowisko) {
  std::array<int, 2> potok{};
  if (::pipe(potok.data()) != 0) throw std::runtime_error("pipe");
  const auto start = std::chrono::steady_clock::now();
  const pid_t pid = ::fork();
  if (pid == 0) Zastap(polecenie, srodowisko, potok[1]);
  ::close(potok[1]);

  Przebieg przebieg;
  std::array<char, 4096> bufor{};
  for (ssize_t ile = 0; (ile = ::read(potok[0], bufor.data(), bufor.size())) > 0;) {
    przebieg.wyjscie.append(bufor.data(), static_cast<std::size_t>(ile));
  }
  ::close(potok[0]);
  int status = 0;
  struct rusage zuzycie {};
  ::wait4(pid, &status, 0, &zuzycie);
  przebieg.sekund = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  for (const timeval& czas : {zuzycie.ru_utime, zuzycie.ru_stime})
    przebieg.procesora += static_cast<double>(czas.tv_sec) + static_cast<double>(czas.tv_usec) / 1e6;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    std::string opis = "Nie powiodło się:";
    for (const std::string& a : polecenie) opis += ' ' + a;
    throw std::runtime_error(opis);
  }
  return przebieg;
}
