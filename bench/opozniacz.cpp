#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

// opozniacz PORT MS: a longer road to the server at PORT of this machine. Prints the port it listens on; when
// its standard input ends, how many journeys there and back were made. A journey begins when a client speaks
// after the server has spoken, and takes MS milliseconds more.

namespace {

std::atomic<long long> podrozy = 0;

[[noreturn]] void Rzuc(const char* czynnosc) {
  throw std::system_error(errno, std::generic_category(), czynnosc);
}

class Gniazdo {
 public:
  explicit Gniazdo(int numer) : m_numer(numer) {
    if (numer < 0) Rzuc("gniazdo");
    // Small messages must not wait for more to go with them.
    const int tak = 1;
    ::setsockopt(numer, IPPROTO_TCP, TCP_NODELAY, &tak, sizeof tak);
  }
  Gniazdo(Gniazdo&& inne) noexcept : m_numer(std::exchange(inne.m_numer, -1)) {}
  Gniazdo& operator=(Gniazdo&&) = delete;
  ~Gniazdo() {
    if (m_numer >= 0) ::close(m_numer);
  }
  int Numer() const { return m_numer; }

 private:
  int m_numer;
};

// An address of this machine; port 0: any that is free.
class Adres {
 public:
  explicit Adres(int port) {
    m_adres.sin_family = AF_INET;
    m_adres.sin_port = htons(static_cast<std::uint16_t>(port));
    m_adres.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  }
  explicit Adres(const Gniazdo& gniazdo) {
    if (::getsockname(gniazdo.Numer(), Dane(), &m_rozmiar) != 0) Rzuc("getsockname");
  }
  sockaddr* Dane() { return reinterpret_cast<sockaddr*>(&m_adres); }  // the C interface
  socklen_t Rozmiar() const { return m_rozmiar; }
  int Port() const { return ntohs(m_adres.sin_port); }

 private:
  sockaddr_in m_adres{};
  socklen_t m_rozmiar = sizeof m_adres;
};

Gniazdo Nasluchuj() {
  Gniazdo gniazdo(::socket(AF_INET, SOCK_STREAM, 0));
  Adres adres(0);
  if (::bind(gniazdo.Numer(), adres.Dane(), adres.Rozmiar()) != 0) Rzuc("bind");
  if (::listen(gniazdo.Numer(), SOMAXCONN) != 0) Rzuc("listen");
  return gniazdo;
}

Gniazdo Polacz(int port) {
  Gniazdo gniazdo(::socket(AF_INET, SOCK_STREAM, 0));
  Adres adres(port);
  if (::connect(gniazdo.Numer(), adres.Dane(), adres.Rozmiar()) != 0) Rzuc("connect");
  return gniazdo;
}

// Waits for either of two; true when the first has something to read, or its end.
bool PierwszyMowi(int pierwszy, int drugi) {
  std::array<pollfd, 2> strony = {{{pierwszy, POLLIN, 0}, {drugi, POLLIN, 0}}};
  while (::poll(strony.data(), strony.size(), -1) < 0)
    if (errno != EINTR) Rzuc("poll");
  return strony[0].revents != 0;
}

bool Wyslij(const Gniazdo& dokad, std::string_view bajty) {
  while (!bajty.empty()) {
    const ssize_t wyslano = ::send(dokad.Numer(), bajty.data(), bajty.size(), MSG_NOSIGNAL);
    if (wyslano < 0) return false;
    bajty.remove_prefix(static_cast<std::size_t>(wyslano));
  }
  return true;
}

using Milisekundy = std::chrono::duration<double, std::milli>;

// Until one of the two hangs up.
void Przekazuj(const Gniazdo& klient, const Gniazdo& serwer, Milisekundy opoznienie) {
  std::array<char, 1 << 16> bufor;
  for (bool mowilSerwer = true;;) {
    const bool mowiSerwer = PierwszyMowi(serwer.Numer(), klient.Numer());
    const Gniazdo &skad = mowiSerwer ? serwer : klient, &dokad = mowiSerwer ? klient : serwer;
    const ssize_t ile = ::recv(skad.Numer(), bufor.data(), bufor.size(), 0);
    if (ile <= 0) return;
    if (mowilSerwer && !mowiSerwer) {
      ++podrozy;
      std::this_thread::sleep_for(opoznienie);
    }
    mowilSerwer = mowiSerwer;
    if (!Wyslij(dokad, {bufor.data(), static_cast<std::size_t>(ile)})) return;
  }
}

void Obsluz(const Gniazdo& klient, int port, Milisekundy opoznienie) {
  try {
    Przekazuj(klient, Polacz(port), opoznienie);
  } catch (const std::system_error& blad) {
    std::fprintf(stderr, "opozniacz: %s\n", blad.what());
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("Użycie: opozniacz PORT MS\n", stderr);
    return 2;
  }
  try {
    const int port = std::atoi(argv[1]);
    const Milisekundy opoznienie(std::atof(argv[2]));
    const Gniazdo nasluch = Nasluchuj();
    std::printf("%d\n", Adres(nasluch).Port());
    std::fflush(stdout);
    for (;;) {
      if (!PierwszyMowi(STDIN_FILENO, nasluch.Numer())) {
        Gniazdo klient(::accept(nasluch.Numer(), nullptr, nullptr));
        std::thread([klient = std::move(klient), port, opoznienie] {
          Obsluz(klient, port, opoznienie);
        }).detach();
      } else if (std::getchar() == EOF) {
        break;
      }
    }
    std::printf("%lld\n", podrozy.load());
  } catch (const std::system_error& blad) {
    std::fprintf(stderr, "opozniacz: %s\n", blad.what());
    return 1;
  }
  return 0;
}
