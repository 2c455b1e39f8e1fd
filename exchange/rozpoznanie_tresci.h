#pragma once

#include <optional>
#include <string_view>

#include <QString>

// What the bytes of a file say of it. The one place that decides whether a file is what a reader takes it
// for.
enum class RodzajTresci { Tekst, Utf8, Utf16, BajtyZerowe, Binarny, DBase };

// Tells UTF-8 without a mark from the 8-bit pages by all letters of a file, handed in piece by piece. One
// letter written in UTF-8 is enough, and a stray byte here and there does not hide it: read in an 8-bit page
// every such letter would reach the database as two.
class LicznikUtf8 {
 public:
  // A piece is a line or a value: no letter goes on in the next one, the last may be cut off.
  void Dodaj(std::string_view kawalek);
  bool JestUtf8() const { return m_pewnych > 0 && m_zlych * kDobrychNaZly < m_pewnych + kDobrychNaZly; }
  // So many letters without a fault that nothing behind them can change it.
  bool BezWatpienia() const { return m_zlych == 0 && m_pewnych >= 2 * kDobrychNaZly; }

 private:
  static constexpr qint64 kDobrychNaZly = 10;
  qint64 m_pewnych = 0;  // sequences of several bytes that are no likely text of an 8-bit page
  qint64 m_zlych = 0;    // bytes beyond ASCII that belong to no sequence
};

// By the beginning of a file; `calosc`: there is no more of it. UTF-8 without a mark is told by the whole
// alone unless it is beyond doubt.
RodzajTresci RozpoznajTresc(std::string_view poczatek, bool calosc);
// By the first 64 KiB; `Tekst` for a file that cannot be read, which is left to the one who opens it.
RodzajTresci RozpoznajPlik(const QString& sciezka);

// Why a reader of texts refuses the file, and what to do; empty for a text.
QString OpisTresci(RodzajTresci rodzaj, const QString& sciezka);
// Why a reader of dBase tables refuses a file that is a text: names its likely layout. Nothing when it is no
// text.
std::optional<QString> OpisTekstuZamiastDBase(const QString& sciezka);
