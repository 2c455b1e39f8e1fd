#pragma once

#include <string>
#include <string_view>

#include <QFile>
#include <QString>

// A text file of 8-bit characters, read and written line by line through a buffer of its own. A read line is
// a view into that buffer: no line is copied. One object reads or writes; the position is always counted in
// bytes.
class TMFile {
 public:
  enum class Tryb {
    Odczyt,       // of a regular file
    Zapis,        // created if need be, emptied
    NaNowo,       // a new file: a link in its place is replaced, not followed
    Modyfikacja,  // created if need be, kept; the position is the beginning
    Dopisywanie   // created if need be, kept; the position is the end
  };
  enum class WynikLinii {
    Linia,
    Koniec,
    ZaDluga,  // longer than kNajdluzszaLinia; it has been passed over
    Blad      // the system could not read; see OpisBledu()
  };
  static constexpr qint64 kNajdluzszaLinia = 1024 * 1024;

  TMFile() = default;
  ~TMFile();
  TMFile(const TMFile&) = delete;
  TMFile& operator=(const TMFile&) = delete;

  bool Open(const QString& sciezka, Tryb tryb);
  // False when what was written did not reach the file.
  bool Close();
  bool IsOpen() const { return m_plik.isOpen(); }

  // The next line without its end: LF or CR LF, in a file without any LF also CR. Bytes 1A that end the file,
  // with line ends among them, are no part of it; nor is what is written behind the end that Open found. A
  // file that ends before it is an error. Valid until the next call.
  WynikLinii ReadLine(std::string_view& linia);
  // Whether a zero byte has been met in what was read so far; a text file has none.
  bool NapotkanoZero() const { return m_zero; }

  // Writes the text and CR LF. An error stays: every later write, Flush and Close returns false.
  bool WriteLine(std::string_view linia);
  // Hands what is buffered to the system.
  bool Flush();
  // Cuts the file off at the position.
  bool SetEof();

  bool Rewind();
  qint64 Position() const;
  // Of a file that is read: up to its end by the bytes 1A.
  qint64 Size() const;
  const QString& FileName() const { return m_sciezka; }
  // The system's words on the last failure.
  const QString& OpisBledu() const { return m_opisBledu; }

 private:
  enum class Doczytanie { Jest, Koniec, Blad };
  bool ZbadajTekst();
  qint64 KoniecTekstu();
  char ZnakKoncaLinii();
  std::string_view BezCr(std::string_view linia) const;
  Doczytanie Doczytaj();
  WynikLinii OstatniaLinia(std::string_view& linia);
  WynikLinii PominDlugaLinie();
  bool Blad();

  QFile m_plik;
  QString m_sciezka;
  std::string m_bufor;          // reading: bytes ahead; writing: bytes not yet written
  size_t m_od = 0;              // first byte of the buffer not yet handed out
  size_t m_do = 0;              // end of the read bytes in the buffer
  qint64 m_poczatekBufora = 0;  // position in the file of the buffer's first byte
  qint64 m_koniec = 0;          // reading: where the text ends
  char m_koniecLinii = '\n';
  bool m_zero = false;
  bool m_bladZapisu = false;
  QString m_opisBledu;
};
