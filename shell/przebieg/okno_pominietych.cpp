#include "shell/przebieg/okno_pominietych.h"

#include <algorithm>
#include <numeric>

#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <ui_okno_pominietych.h>

#include "run/raport_problemow.h"
#include "shell/dialogi/siatka.h"
#include "shell/przebieg/model_pominietych.h"
#include "shell/przebieg/obok.h"
#include "shell/rozmowa.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// In characters.
constexpr int kSzerokosciKolumn[] = {18, 36};
constexpr int kSzerokosc = 136;
constexpr int kWierszy = 34;

// What the first column of the file holds.
QString NaglowekKodu(const QString& plik) {
  return QFileInfo(plik).fileName() == QStringView(kPominieciKontrahenci) ? u"NIP"_s : u"Kod"_s;
}

// The most frequent reasons first.
void WypelnijPowody(QComboBox& powod, const ListaPominietych& lista) {
  std::vector<int> kolejnosc(lista.grupy.size());
  std::iota(kolejnosc.begin(), kolejnosc.end(), 0);
  const auto grupa = [&](int i) -> const GrupaPowodow& { return lista.grupy[static_cast<std::size_t>(i)]; };
  std::stable_sort(kolejnosc.begin(), kolejnosc.end(),
                   [&](int a, int b) { return grupa(a).ile > grupa(b).ile; });
  powod.addItem(u"Wszystkie (%1)"_s.arg(lista.rekordy.size()), -1);
  for (const int i : kolejnosc) powod.addItem(u"%1 (%2)"_s.arg(grupa(i).nazwa).arg(grupa(i).ile), i);
}

class Tfrm_pominiete final : public QDialog {
 public:
  Tfrm_pominiete(QWidget* rodzic, Rozmowa& rozmowa, const QString& plik, ListaPominietych lista)
      : QDialog(rodzic), m_model(std::move(lista), NaglowekKodu(plik)), m_filtr(m_model) {
    m_ui.setupUi(this);
    m_ui.tabela->setModel(&m_filtr);
    // As the file has them until a header is clicked.
    m_ui.tabela->sortByColumn(-1, Qt::AscendingOrder);
    const int znak = fontMetrics().averageCharWidth();
    for (int kolumna = 0; kolumna < static_cast<int>(std::size(kSzerokosciKolumn)); ++kolumna)
      m_ui.tabela->setColumnWidth(kolumna, kSzerokosciKolumn[kolumna] * znak);
    UlozSiatke(*m_ui.tabela);
    resize(kSzerokosc * znak, kWierszy * fontMetrics().lineSpacing());
    m_ui.otworz->setToolTip(QDir::toNativeSeparators(plik));
    WypelnijPowody(*m_ui.powod, m_model.Lista());
    PokazGrupe();
    connect(m_ui.powod, &QComboBox::currentIndexChanged, this, [this] { PokazGrupe(); });
    connect(m_ui.zamknij, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui.otworz, &QPushButton::clicked, this, [this, &rozmowa, plik] {
      if (!QDesktopServices::openUrl(QUrl::fromLocalFile(plik)))
        rozmowa.Powiedz(this, {u"UWAGA"_s, u"Nie udało się otworzyć pliku "_s + plik});
    });
  }

 private:
  void PokazGrupe() {
    m_filtr.UstawGrupe(m_ui.powod->currentData().toInt());
    m_ui.ile->setText(u"Pokazano %1 z %2"_s.arg(m_filtr.rowCount()).arg(m_model.rowCount()));
  }

  Ui::Tfrm_pominiete m_ui;
  ModelPominietych m_model;
  FiltrPominietych m_filtr;
};

}  // namespace

void PokazPominiete(QWidget* rodzic, Rozmowa& rozmowa, const QString& plik) {
  auto lista = Obok([&] { return WczytajPominiete(plik); });
  if (!lista) return rozmowa.Powiedz(rodzic, {u"UWAGA"_s, u"Nie udało się odczytać pliku "_s + plik});
  Tfrm_pominiete okno(rodzic, rozmowa, plik, std::move(*lista));
  rozmowa.Pokaz(okno);
}
