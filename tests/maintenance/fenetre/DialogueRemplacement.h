// The two dialogs that replace all recipes: what differs, and the verbs of their tests.
#pragma once

#include <array>
#include <utility>

#include "maintenance/fenetre/DialogueMaintenance.h"

namespace gastrelle::essai {

struct LigneRemplacement {
  const char* entree;
  const char* nom;
  const char* titre;
  std::array<const char*, 2> demandes;
  const char* fin;
  const char* sujet;
  std::size_t recettes;  ///< how many of the three of the factory are there afterwards
};

inline void PrintTo(const LigneRemplacement& ligne, std::ostream* sortie) {
  *sortie << ligne.nom;
}

inline constexpr std::array<LigneRemplacement, 2> lesDeux{{
    {"mnuFilePropertiesSupp",
     "frmSuppRecette",
     "Gastrelle 2005 - Suppression des recettes de cuisine",
     {"Vous allez effacer définitivement toutes les recettes de cuisine mémorisées dans "
      "'Gastrelle'",
      "Je confirme vouloir effacer définitivement toutes les recettes de cuisine mémorisées dans "
      "'Gastrelle'"},
     "Effacement effectué avec succès",
     "vider",
     1},
    {"mnuFilePropertiesReini",
     "frmReinitialisation",
     "Gastrelle 2005 - Réinitialisation des recettes de cuisine",
     {"Vous allez effacer définitivement toutes vos recettes de cuisine mémorisées dans "
      "'Gastrelle' et réinstaller celles fournies d'origine avec le logiciel.",
      "Je confirme vouloir effacer définitivement toutes mes recettes de cuisine mémorisées dans "
      "'Gastrelle' et réinstaller celles fournies d'origine avec le logiciel."},
     "Réinitialisation effectuée avec succès",
     "reinitialiser",
     3},
}};

/// How long a double click may take, in milliseconds, as long as it lives.
class Patience {
 public:
  explicit Patience(int duree) { QApplication::setDoubleClickInterval(duree); }
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;
  ~Patience() { QApplication::setDoubleClickInterval(avant_); }

 private:
  const int avant_ = QApplication::doubleClickInterval();
};

class DialogueRemplacement : public DialogueMaintenance,
                             public testing::WithParamInterface<LigneRemplacement> {
 public:
  /// The controls on display, of those that come and go.
  static std::string Visibles(const QDialog& dialogue) {
    QStringList noms;
    for (const char* nom : {"Label1(0)", "Label1(1)", "Label2(0)", "Label2(1)", "cmdOui", "cmdNon",
                            "cmdAide", "cmdFin"}) {
      if (Trouve(dialogue, nom).isVisible()) {
        noms << nom;
      }
    }
    return noms.join(u' ').toStdString();
  }
  /// Both confirmations, the second one later than a double click.
  static void Accorde(const QDialog& dialogue) {
    QWidget& oui = Trouve(dialogue, "cmdOui");
    if (Trouve(dialogue, "Label1(0)").isVisible()) {
      Clique(oui);
    }
    QTest::qWait(2 * QApplication::doubleClickInterval());
    Clique(oui);
  }

 protected:
  [[nodiscard]] static const LigneRemplacement& ligne() { return GetParam(); }

  /// Three recipes of the factory, one of the user's in a family of his; windows of normal size.
  void OuvreTrois() {
    cadre.reset();
    b.dossier.Supprime("GLR1.DAT");
    b.dossier.Supprime("GLR2.DAT");
    b.dossier.Supprime("GLR3.DAT");
    b.dossier.Supprime("GLR4.DAT");
    if (!std::exchange(fabriquee_, true)) {
      b.AjouteRecette(b.AjouteFamille("Sauces"), "Aioli", "De l'ail.");
      b.AjouteRecette(3, "Pesto", "Du basilic.");
    }
    b.Redemarre();
    ChangeFiche<RecRecette>(b, "GLR2.DAT", 2, [](RecRecette& r) { r.nomRecette = "Ma soupe"; });
    b.AjouteRecette(b.AjouteFamille("Desserts"), "Tarte", "Une tarte.");
    Ouvre(fenetresNormales);
    b.son.joues.clear();
    avant_ = Contenu(b.dossier.chemin());
  }
  void AvecLui(const std::function<void(QDialog&)>& regarde) {
    AvecMaintenance(ligne().entree, ligne().nom, regarde);
  }
  void Remplace() {
    AvecLui([](QDialog& dialogue) {
      Accorde(dialogue);
      Clique(Trouve(dialogue, "cmdFin"));
    });
  }
  [[nodiscard]] std::size_t Sons() const { return b.son.joues.size(); }

  void AttendRienDeFait() {
    EXPECT_EQ(Contenu(b.dossier.chemin()), avant_);
    EXPECT_FALSE(recettes().isMaximized());
    EXPECT_EQ(Ouvertes(), "frmRecettes");
    EXPECT_EQ(cadre->property("Tag").toString(), "");
  }
  void AttendRemplacees() {
    const auto vivantes = RecettesVivantes(b.dossier);
    ASSERT_EQ(vivantes.size(), ligne().recettes);
    EXPECT_EQ(vivantes.front(), Veloute());
    EXPECT_EQ(FichesDe<RecRecette>(b.dossier, "GLR2.DAT").size(), ligne().recettes);
  }

 private:
  bool fabriquee_ = false;
  std::vector<std::pair<std::string, std::string>> avant_;
};

/// The same dialog on a library of one recipe.
class DialogueDeSuppression : public DialogueMaintenance {
 protected:
  void AvecSuppression(const std::function<void(QDialog&)>& regarde) {
    AvecMaintenance("mnuFilePropertiesSupp", "frmSuppRecette", regarde);
  }
};

}  // namespace gastrelle::essai
