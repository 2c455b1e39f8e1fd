#pragma once

#include "robotnik/przekazanie.h"
#include "run/postep.h"
#include "shell/przebieg/widok_postepu.h"

class Rozmowa;
class Tfrm_progress;

// The progress of a run in its window. On the worker; every call is shown before it returns.
class PostepOkna final : public IPostep {
 public:
  PostepOkna(Przekazanie& doOkna, Tfrm_progress& okno, Rozmowa& rozmowa)
      : m_doOkna(doOkna), m_okno(okno), m_rozmowa(rozmowa) {}

  void Faza(const QString& tekst, long long maksimum) override;
  void Pozycja(long long pozycja) override { Wyslij(StanPostepu::Pozycja, pozycja); }
  void DopiszLiczbe(long long liczba) override { Wyslij(StanPostepu::Liczba, liczba); }
  void Gotowe() override { Wyslij(StanPostepu::Gotowe); }
  void Pokaz(const QString& tytul, const QString& tekst) override;
  void Koniec() override { Wyslij(StanPostepu::Koniec); }

 private:
  void Wyslij(StanPostepu stan, long long liczba = 0, const QString& tekst = {});

  Przekazanie& m_doOkna;
  Tfrm_progress& m_okno;
  Rozmowa& m_rozmowa;
  int m_linia = -1;
};
