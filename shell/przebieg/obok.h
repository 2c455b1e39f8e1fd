#pragma once

#include <future>

#include <QEventLoop>
#include <QScopeGuard>

// Does work that would hold the windows up, on a thread of its own; they draw themselves meanwhile, clicks
// and keys wait. Returns what the work returns. On the main thread.
template <typename Praca>
auto Obok(const Praca& praca) {
  QEventLoop petla;
  auto wynik = std::async(std::launch::async, [&] {
    const auto koniec =
        qScopeGuard([&] { QMetaObject::invokeMethod(&petla, &QEventLoop::quit, Qt::QueuedConnection); });
    return praca();
  });
  petla.exec(QEventLoop::ExcludeUserInputEvents);
  return wynik.get();
}
