#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "exchange/komunikat.h"
#include "run/postep.h"
#include "run/tempo.h"

// Progress on standard error. On a terminal the last line is drawn anew, at most 25 times a second, with a
// bar, the rate and the time left; elsewhere every phase is one plain line, begun when the phase begins.
class PostepTerminala final : public IPostep {
 public:
  PostepTerminala();
  ~PostepTerminala() override;

  void Faza(const QString& tekst, long long maksimum) override;
  void Pozycja(long long pozycja) override;
  void DopiszLiczbe(long long liczba) override;
  void Gotowe() override;
  void Pokaz(const QString& tytul, const QString& tekst) override;
  void PokazUwage(const QString& linia) override;
  void Koniec() override;

  // Every message box shown so far.
  const std::vector<Komunikat>& Pokazane() const { return m_pokazane; }

 private:
  // Text and number of the last line.
  QString Linia() const;
  QString Pasek(qsizetype szerokosc) const;
  QString OpisTempa() const;
  void Rysuj() const;
  void ZamknijLinie();
  void WypiszMiedzyLiniami(const QString& linia);

  const bool m_zywy;
  QString m_tekst;
  long long m_maksimum = 0;
  long long m_pozycja = 0;
  std::optional<long long> m_liczba;
  Tempo m_tempo;
  DlawikPostepu m_dlawik;
  std::vector<Komunikat> m_pokazane;
  bool m_trwa = false;       // the last line is not done
  bool m_przerwana = false;  // plain lines: something else was written behind its beginning
};
