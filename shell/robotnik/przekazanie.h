#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <type_traits>

// Hands calls from the worker to the main thread and waits for each: nothing is ever queued, so whatever a
// call refers to may be read by the main thread while the worker stands still. Plain C++, so that the thread
// sanitizer sees all of it.
class Przekazanie {
 public:
  using Czynnosc = std::function<void()>;

  // `obudz` is called on the worker and has to make the main thread call Obsluz soon. What it throws leaves
  // the call it was made for.
  explicit Przekazanie(Czynnosc obudz) : m_obudz(std::move(obudz)) {}
  Przekazanie(const Przekazanie&) = delete;
  Przekazanie& operator=(const Przekazanie&) = delete;

  // On the worker: returns when the main thread has done it; what it threw is thrown here.
  void Wykonaj(const Czynnosc& czynnosc);
  // The same for a call with a result.
  template <typename Pytanie>
  auto Zapytaj(const Pytanie& pytanie) {
    std::optional<std::invoke_result_t<Pytanie>> odpowiedz;
    Wykonaj([&] { odpowiedz.emplace(pytanie()); });
    return std::move(*odpowiedz);
  }
  // On the worker: it hands nothing over any more.
  void Zamknij();

  // On the main thread: does what the worker waits for; nothing when it does not wait.
  void Obsluz();
  // On the main thread, without an event loop: serves the worker until it closes.
  void ObsluzDoZamkniecia();

 private:
  Czynnosc m_obudz;
  std::mutex m_straz;
  std::condition_variable m_zmiana;
  const Czynnosc* m_czynnosc = nullptr;  // of the waiting worker, not yet taken
  bool m_gotowe = false;
  bool m_zamkniete = false;
  std::exception_ptr m_wyjatek;
};
