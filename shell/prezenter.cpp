#include "shell/prezenter.h"

#include <QApplication>
#include <QThread>

#include "platform/wyjatek.h"
#include "shell/rozmowa.h"

void UstawPrezenterBledow(Rozmowa& rozmowa) {
  EMException::UstawPrezenter([&rozmowa](const EMException& blad) {
    const auto pokaz = [&] { rozmowa.PokazBlad(QApplication::activeWindow(), blad); };
    if (QThread::currentThread() == qApp->thread())
      pokaz();
    else
      QMetaObject::invokeMethod(qApp, pokaz, Qt::BlockingQueuedConnection);
  });
}
