// The search dialog as the real frame opens it over each of its three windows.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>

#include <QLineEdit>
#include <QTest>

#include "doublures/CadreVrai.h"
#include "doublures/Depart.h"

namespace gastrelle::essai {

/// A window that can be searched, and what the dialog is called over it.
struct LigneRecherche {
  const char* nom;  ///< of the catalogue, for the tests
  const char* entree;
  const char* suffixe;
  const char* titre;
  const char* liste;  ///< the controls of the window behind
  const char* texte;
  Donnees fiches;
  Donnees textes;
};

inline constexpr std::array<LigneRecherche, 3> lignesRecherche{{
    {"Recettes", "mnuViewRecettes", "Recette", "Recette", "ComboRecettes", "txtRecette",
     Donnees::GLR2, Donnees::GLR3},
    {"Menus", "mnuViewMenus", "Menu", "Menu", "ComboMenus", "txtMenu", Donnees::GLM1,
     Donnees::GLM2},
    {"Trucs", "mnuViewTermesTrucsAstuces", "Truc", "Termes, trucs et astuces", "ComboTrucs",
     "txtTruc", Donnees::GLT1, Donnees::GLT2},
}};

inline void PrintTo(const LigneRecherche& ligne, std::ostream* sortie) {
  *sortie << ligne.nom;
}

/// The dialog over one of the windows, with the names of its controls.
struct VueDialogue {
  QDialog& dialogue;
  const LigneRecherche& ligne;

  template <class Controle = QWidget>
  [[nodiscard]] Controle& Le(const char* nom) const {
    return Trouve<Controle>(dialogue, nom);
  }
  /// A control of the catalogue's own frame, by the beginning of its name.
  template <class Controle = QWidget>
  [[nodiscard]] Controle& Du(const char* debut) const {
    return Trouve<Controle>(dialogue, (std::string(debut) + ligne.suffixe).c_str());
  }
  [[nodiscard]] QString titre() const { return Texte(Du("txtNom")); }
  [[nodiscard]] QString texte() const { return Texte(Du("txtTexte")); }
  [[nodiscard]] bool visible() const { return dialogue.isVisible(); }

  void Cherche(const QString& quoi) const {
    Remplace(Le("txtSaisie"), quoi);
    Clique(Le("cmdOk"));
  }
  void Continue() const { Clique(Du("cmdContinuer")); }

  /// What can be used, "+" or "-": the box, OK, help, cancel and the picture above; show, go on and
  /// give up below.
  [[nodiscard]] std::string Motif() const {
    std::string motif;
    for (const char* nom : {"txtSaisie", "cmdOk", "cmdAide", "cmdAnnuler", "Image1"}) {
      motif += Le(nom).isEnabled() ? '+' : '-';
    }
    motif += ' ';
    for (const char* debut : {"cmdActiver", "cmdContinuer", "cmdAnnuler"}) {
      motif += Du(debut).isEnabled() ? '+' : '-';
    }
    return motif;
  }
};

constexpr const char* enSaisie = "+++++ ---";
constexpr const char* enRecherche = "----- ---";
constexpr const char* surUneFiche = "----- +++";

class DialogueRecherche : public CadreVrai, public testing::WithParamInterface<LigneRecherche> {
 protected:
  ~DialogueRecherche() override {
    b.disque.pendant = nullptr;
    b.messages.pendant = nullptr;
  }

  /// Three records that hold the word "muscade" and one behind them that doesn't; the recipes are
  /// in three families.
  void OuvreTrois() {
    Garnit();
    OuvreSurLaFenetre();
  }
  void Garnit() {
    b.Garnit();
    dansLeTitre = Ajoute("  Muscade rapée ", "Rien d'autre.", "Épices");
    dansLeTexte = Ajoute("Soupe", "De la noix de MUSCADE.\nUn peu.", "Zestes");
    encore = Ajoute("Gratin à la muscade", "", "Zestes");
    Ajoute("Zut", "", "Épices");
  }
  void OuvreSurLaFenetre() {
    Ouvre();
    Choisit(ligne.entree);
    b.disque.OublieJournal();
    b.messages.vus.clear();
    b.pointeur.sabliers = 0;
  }
  std::int32_t Ajoute(std::string_view titre, const std::string& texte, std::string_view famille) {
    const std::string octets =
        DepuisUtf8(QString::fromStdString(texte).replace("\n", "\r\n").toStdString());
    if (ligne.fiches != Donnees::GLR2) {
      return b.AjouteFiche(ligne.fiches, DepuisUtf8(titre), octets);
    }
    auto& numero = familles[std::string(famille)];
    numero = numero == 0 ? b.AjouteFamille(DepuisUtf8(famille)) : numero;
    return b.AjouteRecette(numero, DepuisUtf8(titre), octets);
  }

  void AvecRecherche(const std::function<void(const VueDialogue&)>& regarde) {
    AvecDialogue([&] { Choisit("mnuEditRechercher"); },
                 [&](QDialog& dialogue) {
                   EXPECT_EQ(dialogue.objectName(), "frmRechercher");
                   QApplication::processEvents();
                   regarde({dialogue, ligne});
                 });
    QApplication::processEvents();
  }
  /// The number of what the window behind has on display.
  int NumeroAffiche() { return Le<QComboBox>(ligne.liste).currentData().toInt(); }
  template <class T>
  [[nodiscard]] MessageVu Fin(T texte) const {
    return {std::string(texte), Icone::information, "Gastrelle 2005"};
  }
  [[nodiscard]] MessageVu NonTrouve() const { return Fin("Texte non trouvé"_1252); }
  [[nodiscard]] MessageVu PlusDAutre() const { return Fin("Pas d'autre occurrence"); }

  const LigneRecherche& ligne = GetParam();
  std::map<std::string, std::int32_t> familles;
  std::int32_t dansLeTitre = 0;
  std::int32_t dansLeTexte = 0;
  std::int32_t encore = 0;
};

inline std::string NomDeLaLigne(const testing::TestParamInfo<LigneRecherche>& info) {
  return info.param.nom;
}

}  // namespace gastrelle::essai
