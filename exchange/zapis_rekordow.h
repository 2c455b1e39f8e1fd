#pragma once

#include <string>
#include <string_view>

#include <QString>
#include <QStringView>

#include "platform/plik_obok.h"
#include "platform/plik_tekstowy.h"

// Writes records of an export: fields joined by a tab, lines ended by CR LF, in Windows-1250, nothing quoted.
// Order of calls: Otworz; per record Pole for every field, then ZapiszRekord; Zamknij at the end, also after
// an error: what was written then takes the place of the file of that name (PlikObok). Without a record the
// old file stays.
class ZapisRekordow {
 public:
  bool Otworz(const QString& sciezka);

  // A line break in a text becomes one blank; a tab stays as it is.
  void Pole(QStringView tekst);
  // Numbers and other plain ASCII.
  void PoleAscii(std::string_view tekst);
  // False when the file takes no more.
  bool ZapiszRekord();
  // False when something of what was written did not reach the file, or the disk.
  bool Zamknij();
  // Why the file is written in its place and would be lost half-way; empty when it is not.
  const QString& DlaczegoWMiejscu() const { return m_obok.DlaczegoWMiejscu(); }
  // Whether the file of that name is still the old one.
  bool DawnyPozostal() const { return m_dawnyPozostal; }

  // Characters of the record written last that Windows-1250 lacks; each was written as "?".
  int BrakujacychZnakow() const { return m_brakujacych; }
  QString OpisBledu() const { return m_blad.isEmpty() ? m_plik.OpisBledu() : m_blad; }

 private:
  void NastepnePole();

  PlikObok m_obok;
  TMFile m_plik;
  QString m_blad;  // of the change of files
  bool m_dawnyPozostal = true;
  std::string m_linia;
  bool m_pierwsze = true;
  int m_brakujacych = 0;
  int m_brakujacychTeraz = 0;
};
