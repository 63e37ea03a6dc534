// The wines window on the factory's wines, with verbs for its tests.
#pragma once

#include <initializer_list>
#include <string>

#include <QRadioButton>

#include "doublures/FenetreEssai.h"
#include "vins/VinsEssai.h"
#include "vins/frmVins.h"

namespace gastrelle::essai {

class FenetreVins : public FenetreEssai<frmVins> {
 protected:
  FenetreVins() { b.GarnitVins(); }

  /// "Abymes" (565) of the region "Alpes" (29), the first of their lists: six white and two red
  /// bottles, a note of ten bytes at position 9, one of eight on the cellar at 19. "Vin 002" of
  /// "Région 002" follows.
  static void AjouteAbymes(Bibliotheque& bibliotheque) {
    bibliotheque.AjouteVin(VinEnCave("Abymes", {6, 2}, bibliotheque.AjouteRegion("Alpes")),
                           "Dix octets", "En haut.");
  }
  /// A library of its own for what fails at each write.
  static void PrepareAbymes(Bibliotheque& bibliotheque) {
    bibliotheque.GarnitVins();
    AjouteAbymes(bibliotheque);
  }
  /// Opens on "Abymes".
  void OuvreSurAbymes(int surOnglet = 1) {
    AjouteAbymes(b);
    Ouvre(surOnglet);
  }
  /// Closes the window and opens it anew.
  void Rouvre() {
    fenetre = Cree();
    fenetre->show();
    fenetre->Active();
  }
  /// Opens the window, which ends the program.
  void AttendOuvertureFatale() {
    cadre.emplace(*b.module);
    EXPECT_THROW(Cree(), FinDuProgramme);
    ASSERT_FALSE(b.messages.vus.empty());
    EXPECT_EQ(b.messages.vus.back(),
              (MessageVu{DepuisUtf8("Erreur fatale. Impossibilité de continuer."), Icone::critique,
                         std::string(titreApplication)}));
  }

  QComboBox& vins() { return Le<QComboBox>("ComboVins"); }
  int numeroAffiche() { return vins().currentData().toInt(); }
  QString TexteDe(const char* nom) { return Texte(Le(nom)); }
  QStringList TextesDe(std::initializer_list<const char*> noms) {
    QStringList textes;
    for (const char* nom : noms) {
      textes << TexteDe(nom);
    }
    return textes;
  }
  /// The first tab: wine, region, note.
  QStringList vinAffiche() { return TextesDe({"ComboVins", "txtRegion", "txtNotes"}); }
  /// Those of these controls that can be used.
  QStringList Actifs(std::initializer_list<const char*> noms) {
    QStringList actifs;
    for (const char* nom : noms) {
      if (Le(nom).isEnabled()) {
        actifs << nom;
      }
    }
    return actifs;
  }
  bool estCoche(const char* option) { return Le<QRadioButton>(option).isChecked(); }
  /// The window is on its first tab, with the keyboard on the wines and the pointer an arrow.
  void AttendLaListe() {
    EXPECT_EQ(onglet(), 1);
    EXPECT_TRUE(aLeFocus("ComboVins"));
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// Nothing was asked of the disk, and the window is still on that tab.
  void AttendRienDeFait(int surOnglet) {
    EXPECT_THAT(b.disque.journal(), testing::IsEmpty());
    EXPECT_EQ(onglet(), surOnglet);
    EXPECT_FALSE(b.pointeur.sablier);
  }

  /// Lines of the disk's journal.
  static std::string Appel(const char* verbe, const char* fichier, std::size_t debut,
                           std::size_t longueur) {
    return std::string(verbe) + " " + fichier + " " + std::to_string(debut) + "+" +
           std::to_string(longueur);
  }
  static std::string EcritVin(std::size_t numero) {
    constexpr std::size_t longueur = longueurEnregistrement<RecVin>;
    return Appel("écrit", "GLV2.DAT", (numero - 1) * longueur, longueur);
  }
  static std::string EcritRegion(std::size_t numero) {
    constexpr std::size_t longueur = longueurEnregistrement<RecRegion>;
    return Appel("écrit", "GLV1.DAT", (numero - 1) * longueur, longueur);
  }
  static std::string EcritTexte(std::size_t position, std::size_t longueur) {
    return Appel("écrit", "GLV3.DAT", position - 1, longueur);
  }
  static std::string LitVin(std::size_t numero) {
    constexpr std::size_t longueur = longueurEnregistrement<RecVin>;
    return Appel("lit", "GLV2.DAT", (numero - 1) * longueur, longueur);
  }
  static std::string LitRegion(std::size_t numero) {
    constexpr std::size_t longueur = longueurEnregistrement<RecRegion>;
    return Appel("lit", "GLV1.DAT", (numero - 1) * longueur, longueur);
  }
  static std::string LitTexte(std::size_t position, std::size_t longueur) {
    return Appel("lit", "GLV3.DAT", position - 1, longueur);
  }
  /// The one read of a scan up to record `dernier`.
  static std::string ParcourtVins(std::size_t dernier) {
    constexpr std::size_t longueur = longueurEnregistrement<RecVin>;
    return Appel("lit", "GLV2.DAT", longueur, (dernier - 1) * longueur);
  }
  static std::string ParcourtRegions(std::size_t derniere) {
    constexpr std::size_t longueur = longueurEnregistrement<RecRegion>;
    return Appel("lit", "GLV1.DAT", longueur, (derniere - 1) * longueur);
  }
};

}  // namespace gastrelle::essai
