#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include <QString>
#include <QStringList>

struct Argumenty;

// Exit statuses of the program.
enum class StatusWyjscia {
  Zakonczono = 0,
  BledneUzycie = 2,
  Odmowa = 3,    // nothing was begun
  Blad = 4,      // begun, and ended by a fault
  Przerwano = 5  // stopped by the operator or by the answer to a question
};

enum class ArgumentPliku { Brak, Opcjonalny, Wymagany };

// A sub-command.
struct PolecenieProgramu {
  std::u16string_view nazwa;
  ArgumentPliku plik;
  std::u16string_view opis;       // one line
  std::u16string_view szczegoly;  // more of it, for the help of the command; may be empty
  unsigned opcje;                 // groups of options it takes
  std::function<StatusWyjscia(const Argumenty&)> wykonaj;
};

// The commands of the program itself, then the operations.
const std::vector<PolecenieProgramu>& TabelaPolecen();

// The part of a help text that lists the options of the given groups.
QString PomocOpcji(unsigned grupy);

// The whole program: words of the command line in, exit status out.
StatusWyjscia WykonajWierszPolecen(const QStringList& slowa);
