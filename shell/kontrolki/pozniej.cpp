#include "shell/kontrolki/pozniej.h"

#include <utility>

#include <QObject>

void Pozniej(QObject& odbiorca, std::function<void()> praca) {
  QObject sygnal;  // its end is the signal
  QObject::connect(&sygnal, &QObject::destroyed, &odbiorca, std::move(praca), Qt::QueuedConnection);
}
