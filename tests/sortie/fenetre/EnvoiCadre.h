// Sending from the real frame, on a library that has a record of its own with accents everywhere.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "data/Texte1252.h"
#include "doublures/CadreVrai.h"

namespace gastrelle::essai {

class EnvoiCadre : public CadreVrai {
 protected:
  EnvoiCadre() {
    using std::chrono::year;
    b.horloge.date = year{2026} / 4 / 9;
    b.Garnit();
    b.AjouteRecette(b.AjouteFamille("Entrées froides"_1252), "Œufs mimosa"_1252,
                    "Cuire les œufs…\r\n\r\nServir frais.\r\n"_1252);
    b.AjouteFamille("Sans recette");
    RecFromage fromage;
    fromage.nomFromage = "Maroilles affiné"_1252;
    fromage.regionFromage = "Thiérache"_1252;
    fromage.lait = brebis;
    fromage.premierMois = fevrier;
    fromage.dernierMois = aout;
    b.AjouteFromage(fromage, "Très fort.\r\nÀ la bière."_1252);
    RecVin vin;
    vin.nomVin = "Vouvray pétillant"_1252;
    vin.idRegion = b.AjouteRegion("Touraine à part"_1252);
    vin.nbRose = 3;
    b.AjouteVin(vin, "Frais.\r\nEn été."_1252);
    b.AjouteRegion("Sans vin");
    b.AjouteFiche(Donnees::GLM1, "Noël"_1252, "Huîtres\r\nBûche"_1252);
    b.AjouteFiche(Donnees::GLT1, "Zeste râpé"_1252, "Sans le blanc.\r\n"_1252);
    RecFavori favori;
    favori.nomFavori = "Étoile"_1252;
    favori.idCategorie = Tenu<std::int16_t>(b.AjouteCategorie("Épiciers"_1252));
    favori.fax = "01 02";
    favori.siteWeb = "https://étoile.fr"_1252;
    b.AjouteFavori(favori, "1 rue Haute\r\nDôle"_1252);
    b.AjouteCategorie("Sans favori");
  }

  /// Opens the frame, then one of its windows on a tab.
  void OuvreSur(const char* entree, const char* nom, int onglet) {
    Ouvre();
    Va(entree, nom, onglet);
  }
  /// Goes to a window of the frame, on a tab.
  void Va(const char* entree, const char* nom, int onglet) {
    Choisit(entree);
    fenetre_ = &Le(nom);
    if (onglet != 1) {
      CliqueOnglet(*fenetre_, onglet);
      QApplication::processEvents();
    }
  }
  /// Chooses an entry of a drop-down list of that window with the mouse.
  void Prend(const char* liste, const char* entree) {
    essai::Choisit(Trouve<QComboBox>(*fenetre_, liste), Fr(entree));
  }
  /// What a control of that window shows, in UTF-8.
  std::string Montre(const char* nom) {
    return Texte(Trouve<QWidget>(*fenetre_, nom)).toStdString();
  }
  /// The rows of a list of that window, each with a line end behind.
  std::string Rangs(const char* nom) {
    std::string rangs;
    for (const QString& rang : Textes(Trouve<QAbstractItemView>(*fenetre_, nom))) {
      rangs += rang.trimmed().toStdString() + '\n';
    }
    return rangs;
  }
  void Presse(const char* cle) {
    Clique(BoutonBarre(cle));
    QApplication::processEvents();
  }
  /// The body of a document, in UTF-8 and with bare line ends; its heading is checked.
  std::string Corps(const std::string& nom) {
    const std::string tete = "Gastrelle 2005 (Edition du 9/4/2026)\r\n\r\n";
    const std::string octets = b.dossier.Lit(nom);
    EXPECT_EQ(octets.substr(0, tete.size()), tete);
    return QString::fromStdString(VersUtf8(octets.substr(std::min(tete.size(), octets.size()))))
        .replace("\r\n", "\n")
        .toStdString();
  }
  bool Ouvert(const std::string& nom) {
    return b.association.cibles == std::vector{(b.dossier.chemin() / nom).string()};
  }

  static constexpr std::int16_t brebis = 3;
  static constexpr std::int16_t fevrier = 2;
  static constexpr std::int16_t aout = 8;

 private:
  QWidget* fenetre_ = nullptr;
};

}  // namespace gastrelle::essai
