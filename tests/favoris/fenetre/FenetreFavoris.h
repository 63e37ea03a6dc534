// The window of the favourites on those of the factory, with verbs for its tests.
#pragma once

#include <initializer_list>
#include <string>

#include <QRadioButton>

#include "doublures/FenetreEssai.h"
#include "favoris/FavorisEssai.h"
#include "favoris/frmFavoris.h"

namespace gastrelle::essai {

class FenetreFavoris : public FenetreEssai<frmFavoris> {
 protected:
  FenetreFavoris() { b.GarnitFavoris(); }

  /// A library of its own for what fails at each write.
  static void PrepareAffineur(Bibliotheque& bibliotheque) {
    bibliotheque.GarnitFavoris();
    AjouteAffineur(bibliotheque);
  }
  /// Opens on "Affineur".
  void OuvreSurAffineur(int surOnglet = 1) {
    AjouteAffineur(b);
    Ouvre(surOnglet);
  }
  /// Closes the window and opens it anew.
  void Rouvre() {
    fenetre = Cree();
    fenetre->show();
    fenetre->Active();
  }
  /// Gives the window the keyboard, for keys that aren't a control's own.
  void PrendLeClavier() {
    fenetre->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
  }

  QComboBox& favoris() { return Le<QComboBox>("ComboFavoris"); }
  int numeroAffiche() { return favoris().currentData().toInt(); }
  QString TexteDe(const char* nom) { return Texte(Le(nom)); }
  QStringList TextesDe(std::initializer_list<const char*> noms) {
    QStringList textes;
    for (const char* nom : noms) {
      textes << TexteDe(nom);
    }
    return textes;
  }
  /// The first tab: favourite, category, and its six texts.
  QStringList favoriAffiche() {
    return TextesDe({"ComboFavoris", "txtCategorie", "txtAdresse", "txtTelephone", "txtFax",
                     "txtEmail", "txtWeb", "txtNotes"});
  }
  /// What the first tab shows of "Affineur".
  static QStringList Affineur() {
    return {"Affineur",           "Artisans",       "1 rue Haut",
            "01 02 03 04 05",     "01 02 03 04 06", "affineur@exemple.fr",
            "https://exemple.fr", "Douze octets"};
  }
  /// What the first tab shows of a favourite that holds no text.
  static QStringList SansTexte(const QString& nom, const QString& categorie) {
    return {nom, categorie, "", "", "", "", "", ""};
  }
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

  /// The window is on its first tab, with the keyboard on the category and the pointer an arrow.
  void AttendLaListe() {
    EXPECT_EQ(onglet(), 1);
    EXPECT_TRUE(aLeFocus("txtCategorie"));
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// Nothing was asked of the disk, and the window is still on that tab.
  void AttendRienDeFait(int surOnglet) {
    EXPECT_THAT(b.disque.journal(), testing::IsEmpty());
    EXPECT_EQ(onglet(), surOnglet);
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// The program ended by the report of a failure that no guard caught, and by nothing else.
  static void AttendRapport(const Bibliotheque& bibliotheque, std::string_view utf8) {
    EXPECT_EQ(FinVue(), 1);
    EXPECT_THAT(bibliotheque.messages.vus,
                testing::ElementsAre(
                    MessageVu{DepuisUtf8(utf8), Icone::critique, std::string(titreApplication)}));
    EXPECT_FALSE(bibliotheque.module->erreurFatale);
  }
  static void AttendDisquePlein(const Bibliotheque& bibliotheque) {
    AttendRapport(bibliotheque, "Erreur d'exécution '61' : Disque plein");
  }
  void AttendIntrouvable() { AttendRapport(b, "Erreur d'exécution '53' : Fichier introuvable"); }

  /// Lines of the disk's journal. Positions in the pool count from 1.
  static std::string Appel(const char* verbe, const char* fichier, std::size_t debut,
                           std::size_t longueur) {
    return std::string(verbe) + " " + fichier + " " + std::to_string(debut) + "+" +
           std::to_string(longueur);
  }
  static std::string EcritFavori(std::size_t numero) {
    return Appel("écrit", "GLFV2.DAT", (numero - 1) * 724, 724);
  }
  static std::string EcritCategorie(std::size_t numero) {
    return Appel("écrit", "GLFV1.DAT", (numero - 1) * 130, 130);
  }
  static std::string EcritTexte(std::size_t position, std::size_t longueur) {
    return Appel("écrit", "GLFV3.DAT", position - 1, longueur);
  }
  static std::string LitFavori(std::size_t numero) {
    return Appel("lit", "GLFV2.DAT", (numero - 1) * 724, 724);
  }
  static std::string LitCategorie(std::size_t numero) {
    return Appel("lit", "GLFV1.DAT", (numero - 1) * 130, 130);
  }
  static std::string LitTexte(std::size_t position, std::size_t longueur) {
    return Appel("lit", "GLFV3.DAT", position - 1, longueur);
  }
  /// The one read of a scan up to record `dernier`.
  static std::string ParcourtFavoris(std::size_t dernier) {
    return Appel("lit", "GLFV2.DAT", 724, (dernier - 1) * 724);
  }
  static std::string ParcourtCategories(std::size_t derniere) {
    return Appel("lit", "GLFV1.DAT", 130, (derniere - 1) * 130);
  }
};

}  // namespace gastrelle::essai
