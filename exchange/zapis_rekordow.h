#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

#include "platform/plik_tekstowy.h"

// Writes records of an export: fields joined by a tab, lines ended by CR LF, in Windows-1250, nothing quoted.
// Order of calls: Otworz; per record Pole for every field, then ZapiszRekord; Zamknij at the end, also after
// an error.
class ZapisRekordow {
 public:
  bool Otworz(const QString& sciezka);

  // A line break in a text becomes one blank; a tab stays as it is.
  void Pole(QStringView tekst);
  // Numbers and other plain ASCII.
  void PoleAscii(std::string_view tekst);
  // False when the file takes no more.
  bool ZapiszRekord();
  // False when something of what was written did not reach the file.
  bool Zamknij();

  // Characters of the record written last that Windows-1250 lacks; each was written as "?".
  int BrakujacychZnakow() const { return m_brakujacych; }
  QString OpisBledu() const { return m_plik.OpisBledu(); }

 private:
  void NastepnePole();

  TMFile m_plik;
  std::string m_linia;
  bool m_pierwsze = true;
  int m_brakujacych = 0;
  int m_brakujacychTeraz = 0;
};
