#pragma once

#include <optional>
#include <vector>

#include <QWidget>

#include "run/tempo.h"

class QLabel;
class QProgressBar;
class QTreeWidget;
class QTreeWidgetItem;

// What the number of a message is, and what the view does with its line.
enum class StanPostepu : unsigned char {
  Linia = 0,    // a new line with the text given; the number is the end of its bar, 0 for none
  Pozycja = 1,  // where the bar of the line stands
  Liczba = 2,   // shown behind the text in place of the one before
  Gotowe = 3,   // the line is done
  Koniec = 4    // of the run, without a line; the text says how it ended
};

// The lines of a run with their marks, and below them the bar of the last line that has one, with the records
// a second and the time left. New lines are shown at once; moving numbers and the bar whenever CheckMessages
// is called, so that a message costs the run next to nothing.
class TLProgressView final : public QWidget {
 public:
  static constexpr int kBezLinii = -1;

  explicit TLProgressView(QWidget* rodzic = nullptr);

  // Lines are numbered from 0 in the order in which they begin.
  void AddMessage(int linia, const QString& tekst, StanPostepu stan, long long liczba);
  void CheckMessages();

  // While a person is asked, the clock stands still.
  class Przerwa {
   public:
    explicit Przerwa(TLProgressView& widok) : m_widok(widok) { m_widok.m_tempo.Wstrzymaj(); }
    ~Przerwa() {
      m_widok.m_tempo.Wznow();
      m_widok.m_czekano += Tempo::Zegar::now() - m_poczatek;
    }
    Przerwa(const Przerwa&) = delete;
    Przerwa& operator=(const Przerwa&) = delete;

   private:
    TLProgressView& m_widok;
    const Tempo::Chwila m_poczatek = Tempo::Zegar::now();
  };
  // How long persons have been asked, in seconds.
  double Czekano() const { return m_czekano.count(); }

 private:
  struct Linia {
    QTreeWidgetItem* pozycjaListy;
    QString tekst;
    long long maksimum = 0;
    long long pozycja = 0;
    std::optional<long long> liczba = {};
    bool gotowa = false;
  };

  void DodajLinie(const QString& tekst, long long maksimum);
  void PokazLinie(const Linia& linia);
  void PokazPasek();
  int WysokoscWiersza() const;

  QTreeWidget* m_lista;
  QProgressBar* m_pasek;
  QLabel* m_opis;
  std::vector<Linia> m_linie;
  std::optional<std::size_t> m_zPaskiem;  // the last line that has a bar
  Tempo m_tempo;                          // of that line
  std::chrono::duration<double> m_czekano{0};
  std::optional<QString> m_zakonczenie;  // once the run is over
};
