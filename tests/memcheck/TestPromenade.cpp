// A walk through the program on its factory's folder, whole and damaged in several ways: under
// memcheck nothing may depend on what was never written.
//
// Where a damage ends the program the walk begins anew and goes on behind the gesture that did it.

#include <algorithm>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <QClipboard>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "controles/BoitesTexte.h"
#include "controles/FenetreOnglets.h"
#include "controles/ListeChoix.h"
#include "doublures/AideVue.h"
#include "doublures/CadreVrai.h"
#include "doublures/ToutesFenetres.h"
#include "memcheck/Abimes.h"

namespace gastrelle::essai {
namespace {

using testing::Each;
using testing::EndsWith;
using testing::Field;
using testing::IsSupersetOf;

/// Looks for something, goes on and shows what was found; a dialog that doesn't search stays as it
/// is.
void Cherche(const QDialog& dialogue) {
  auto* saisie = dialogue.findChild<QLineEdit*>("txtSaisie");
  if (saisie == nullptr || !saisie->isEnabled()) {
    return;
  }
  saisie->setText(QStringLiteral("sa"));
  Trouve<QPushButton>(dialogue, "cmdOk").click();
  for (const char* suite : {"cmdContinuer", "cmdContinuer", "cmdActiver"}) {
    for (auto* bouton : dialogue.findChildren<QPushButton*>()) {
      if (bouton->objectName().startsWith(QLatin1String(suite)) && dialogue.isVisible()) {
        bouton->click();
        QApplication::processEvents();
      }
    }
  }
}

/// A dialog that has been painted goes as soon as it lets itself be closed.
class Huissier {
 public:
  Huissier() {
    constexpr int millisecondes = 20;
    QObject::connect(&guet_, &QTimer::timeout, [this] {
      if (auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        QApplication::processEvents();
        vus.insert(dialogue->objectName().toStdString());
        Cherche(*dialogue);
        dialogue->reject();
      }
    });
    guet_.start(millisecondes);
  }

  std::set<std::string> vus;

 private:
  QTimer guet_;
};

class Promenade : public CadreVrai,
                  public testing::WithParamInterface<std::tuple<Abime, LigneEssai>> {
 protected:
  void SetUp() override {
    b.GarnitDeFabrique(DOSSIER_PROGRAMME);
    std::filesystem::copy(DOSSIER_PROGRAMME "/IMAGE", b.dossier.chemin() / "IMAGE");
    if (abime.abime != nullptr) {
      abime.abime(b.dossier);
    }
    QApplication::clipboard()->setText(Fr("Collé : « œuf » → 1⅓ tasse…\nà 180 °C"));
    Commence();
  }

  void Commence() {
    constexpr std::size_t assez = 1000;
    cadre.reset();
    b.module = std::make_unique<Module1>(b.module->services, b.module->chemins);
    b.messages.reponses.assign(assez, Reponse::oui);
    Ouvre(RecPreferences{});
    b.module->fichierAide = DepuisUtf8(FICHIER_AIDE);
    Choisit(ligne.entree);
  }

  template <class Geste>
  void Fait(Geste&& geste) {
    bool finie = false;
    try {
      geste();
      QApplication::processEvents();
    } catch (const FinDuProgramme&) {
      finie = true;
    }
    if (finie || FinVue()) {
      ++fins;
      Commence();
    }
  }

  /// Goes to a tab; a window without tabs is on its only page.
  void VaA(int onglet) {
    if (auto* hote = dynamic_cast<FenetreOnglets*>(&Le(ligne.nom))) {
      hote->MontreOnglet(onglet);
    }
  }

  /// The controls of a kind that can be used on a page.
  template <class Controle>
  std::vector<Controle*> Utiles(int onglet) {
    const std::string page = "Frame1(" + std::to_string(onglet) + ")";
    std::vector<Controle*> utiles;
    for (auto* controle : Trouve(Le(ligne.nom), page.c_str()).findChildren<QWidget*>()) {
      auto* voulu = dynamic_cast<Controle*>(controle);
      if (voulu != nullptr && controle->isVisible() && controle->isEnabled()) {
        utiles.push_back(voulu);
      }
    }
    return utiles;
  }
  template <class Controle>
  Controle* Utile(int onglet, std::size_t rang) {
    const std::vector<Controle*> utiles = Utiles<Controle>(onglet);
    return rang < utiles.size() ? utiles[rang] : nullptr;
  }

  /// Every entry of each list of a whole folder, some of a damaged one; on the first page each
  /// entry of the first list with those of the second.
  void ParcourtListes(int onglet, std::size_t rang = 0) {
    const auto* liste = Utile<ComboListe>(onglet, rang);
    if (liste == nullptr) {
      return;
    }
    const int pas = Pas(liste->count());
    for (int i = 0, nombre = liste->count(); i < nombre; i += pas) {
      Fait([&] {
        if (auto* choisie = Utile<ComboListe>(onglet, rang)) {
          choisie->Choisit(i);
        }
      });
      if (onglet == 1) {
        ParcourtListes(onglet, rang + 1);
      }
    }
    Fait([&] { ChercheDans(Utile<ComboListe>(onglet, rang)); });
    if (onglet != 1) {
      ParcourtListes(onglet, rang + 1);
    }
  }
  [[nodiscard]] int Pas(int nombre) const {
    constexpr int assez = 8;
    return abime.abime == nullptr ? 1 : std::max(1, nombre / assez);
  }
  /// Types ahead in a list that can be reached.
  void ChercheDans(QComboBox* liste) {
    if (liste == nullptr) {
      return;
    }
    QApplication::setActiveWindow(cadre.get());
    liste->setFocus();
    if (liste->hasFocus()) {
      Frappe(Qt::Key_Down, Qt::AltModifier);
      Frappe(QStringLiteral("ta"));
      Frappe(Qt::Key_Return);
      ++recherches;
    }
  }
  void ParcourtListesOuvertes(int onglet) {
    for (auto* liste : Utiles<ListeChoix>(onglet)) {
      Tape(*liste, QStringLiteral("ta"));
      const int nombre = static_cast<int>(liste->entrees().size());
      for (int i = 0; i < nombre; i += Pas(nombre)) {
        liste->Choisit(i);
      }
    }
  }

  template <class Boite>
  void Remplit(int onglet) {
    for (auto* boite : Utiles<Boite>(onglet)) {
      // A picture's path must lead to one.
      if (!boite->isReadOnly() && !boite->objectName().startsWith(QLatin1String("txtImage"))) {
        Tape(*boite, Fr("Œufs – ½ « ß » 🙂\n"));
        boite->paste();
        QTest::keyClick(boite, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(boite, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
      }
    }
  }
  void Conclut(int onglet) {
    for (auto* bouton : Utiles<QPushButton>(onglet)) {
      const QString titre = bouton->text().remove(u'&');
      if (QStringList{"Valider", "Afficher", "Supprimer", "Tout effacer"}.contains(titre)) {
        supprimes += titre == "Supprimer" || titre == "Tout effacer" ? 1 : 0;
        return Clique(*bouton);
      }
    }
  }
  void Saisit(int onglet) {
    Fait([&] { Remplit<LigneTexte>(onglet); });
    Fait([&] { Remplit<ZoneTexte>(onglet); });
    Fait([&] { Conclut(onglet); });
  }
  /// Each choice of the options of a page, if it has any; of a great many the first ones.
  void SaisitSelonOptions(int onglet) {
    constexpr std::size_t assez = 8;
    const std::size_t options = Utiles<QRadioButton>(onglet).size();
    for (std::size_t i = 0; i < std::clamp<std::size_t>(options, 1, assez); ++i) {
      Fait([&] {
        VaA(onglet);
        if (auto* option = Utile<QRadioButton>(onglet, i)) {
          Clique(*option);
        }
      });
      Saisit(onglet);
    }
  }
  void DemandeAide() {
    QTest::keyClick(&Le(ligne.nom), Qt::Key_F1);
    auto& recherche = Trouve<QLineEdit>(*FenetreAide(), "txtRecherche");
    Remplace(recherche, Fr("boeuf à"));
    QTest::keyClick(&recherche, Qt::Key_Return);
    FenetreAide()->close();
  }
  /// Chooses a menu entry from within an event, as a user does: where the program ends in a
  /// handler, the end must not cross the toolkit's own frames.
  void Demande(const char* entree) {
    Fait([&] { QTimer::singleShot(0, cadre.get(), [this, entree] { Choisit(entree); }); });
  }
  void OuvreDialogues() {
    Demande("mnuHelpAbout");
    Demande("mnuFilePreferences");
    if (Permis("mnuViewImage")) {
      Demande("mnuViewImageVisuInterne");
    }
    if (Permis("mnuEditRechercher")) {
      Demande("mnuEditRechercher");
    }
  }
  void Visite(int onglet) {
    Fait([&] { VaA(onglet); });
    if (onglet == 1 || abime.abime == nullptr) {
      Fait([&] { DemandeAide(); });
    }
    ParcourtListes(onglet);
    Fait([&] { ParcourtListesOuvertes(onglet); });
    SaisitSelonOptions(onglet);
  }

  const Abime& abime = std::get<0>(GetParam());
  const LigneEssai& ligne = std::get<1>(GetParam());
  Huissier huissier;
  int fins = 0;
  int recherches = 0;
  int supprimes = 0;
};

INSTANTIATE_TEST_SUITE_P(Toutes, Promenade,
                         testing::Combine(testing::ValuesIn(TousLesAbimes()),
                                          testing::ValuesIn(ToutesLesFenetres())),
                         [](const auto& cas) {
                           return std::string(std::get<0>(cas.param).nom) + "_" +
                                  std::get<1>(cas.param).nom;
                         });

TEST_P(Promenade, VaAuBout) {
  const bool aDesListes = !Le(ligne.nom).findChildren<QComboBox*>().empty();
  const bool seFouille = Permis("mnuEditRechercher");
  for (int onglet = 1; onglet <= ligne.onglets(); ++onglet) {
    Visite(onglet);
  }
  Fait([&] { VaA(1); });
  OuvreDialogues();
  Fait([&] { cadre->close(); });
  EXPECT_THAT(huissier.vus, IsSupersetOf({"frmAbout", "frmPreferences", "frmSauvegarde"}));
  if (abime.abime == nullptr) {
    EXPECT_EQ(fins, 0);
    EXPECT_EQ(recherches > 0, aDesListes);
    EXPECT_EQ(huissier.vus.contains("frmRechercher"), seFouille);
    // Nothing was refused but the deletion of a region of the factory.
    EXPECT_THAT(b.messages.vus,
                Each(Field(&MessageVu::texte, EndsWith(DepuisUtf8("peut être supprimée")))));
    EXPECT_EQ(b.messages.questions.empty(), supprimes == 0);
    EXPECT_TRUE(b.dossier.A("SAUVE/GLR3.DAT"));
  }
}

}  // namespace
}  // namespace gastrelle::essai
