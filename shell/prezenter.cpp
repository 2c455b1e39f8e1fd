#include "shell/prezenter.h"

#include <memory>

#include <QApplication>
#include <QThread>

#include "platform/wyjatek.h"
#include "shell/rozmowa.h"

namespace {

// Takes errors of other threads to the main one.
class Poslaniec final : public QObject {
  Q_OBJECT

 Q_SIGNALS:
  void Blad(const EMException* blad);
};

}  // namespace

void UstawPrezenterBledow(Rozmowa& rozmowa) {
  const auto pokaz = [&rozmowa](const EMException* blad) {
    rozmowa.PokazBlad(QApplication::activeWindow(), *blad);
  };
  const auto poslaniec = std::make_shared<Poslaniec>();
  QObject::connect(poslaniec.get(), &Poslaniec::Blad, qApp, pokaz, Qt::BlockingQueuedConnection);
  EMException::UstawPrezenter([pokaz, poslaniec](const EMException& blad) {
    if (QThread::currentThread() == qApp->thread())
      pokaz(&blad);
    else
      Q_EMIT poslaniec->Blad(&blad);
  });
}

#include "prezenter.moc"
