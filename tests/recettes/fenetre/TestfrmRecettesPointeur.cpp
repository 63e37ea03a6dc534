// The pointer over the recipes window: hourglass while an operation goes on, arrow at its end and
// during each message.

#include "recettes/fenetre/FenetreEssai.h"

namespace gastrelle::essai {
namespace {

using testing::SizeIs;

class PointeurRecettes : public FenetreRecettes {
 protected:
  PointeurRecettes() {
    b.AjouteFamille("Vide");
    ExigePointeurNormalAuxMessages();
  }
  /// A click that shows `messages` more and stops there.
  void AttendArret(const char* bouton, std::size_t messages) {
    b.messages.vus.clear();
    Clique(Le(bouton));
    EXPECT_THAT(b.messages.vus, SizeIs(messages));
    EXPECT_FALSE(b.pointeur.sablier);
  }
  /// Every call of the disk that the gestures bring meets the hourglass, and the arrow is back at
  /// the end.
  template <class Gestes>
  void AttendSablierToutAuLong(Gestes gestes) {
    std::size_t appels = 0;
    b.disque.pendant = [&](const std::string& ligne) {
      ++appels;
      EXPECT_TRUE(b.pointeur.sablier) << ligne;
    };
    gestes();
    b.disque.pendant = nullptr;
    EXPECT_GT(appels, 0U);
    EXPECT_FALSE(b.pointeur.sablier);
  }
  void Saisit(const char* boite, const char* texte) { Remplace(Le(boite), texte); }
};

TEST_F(PointeurRecettes, RevientALaFlecheAChaqueArretDeLAjout) {
  Ouvre(2);
  AttendArret("cmdValideAjouter", 1);
  Le<QLineEdit>("txtImageAjouter").setText("/tmp/a.exe");
  EXPECT_FALSE(b.pointeur.sablier);
  Saisit("txtSaisieNomRecette", "Soupe");
  Le<QLineEdit>("txtImageAjouter").setText("/tmp/a.");
  AttendArret("cmdValideAjouter", 1);
  Clique(Le("Option1(0)"));
  AttendArret("cmdValideAjouter", 1);
  Saisit("txtSaisieFamille", "potages");
  AttendArret("cmdValideAjouter", 1);
}

TEST_F(PointeurRecettes, RevientALaFlecheAChaqueArretDeLaModification) {
  b.AjouteRecette(2, "Soupe");
  b.AjouteRecette(b.AjouteFamille("Sans"), "Velouté"_1252);
  Ouvre();
  Choisit(familles(), Fr("Potages"));
  Choisit(recettes(), Fr("Velouté"));
  CliqueOnglet(*fenetre, 3);
  Saisit("txtSaisieNomRecetteModifier", "");
  AttendArret("cmdValideModifier", 1);
  Saisit("txtSaisieNomRecetteModifier", "Soupe");
  AttendArret("cmdValideModifier", 1);
  Clique(Le("cmdEffacerModifier"));
  Choisit(Le<QComboBox>("ComboFamillesModifier"), Fr("Sans"));
  AttendArret("cmdValideModifier", 1);
  Clique(Le("cmdEffacerModifier"));
  Saisit("txtImageModifier", "/tmp/a.exe");
  AttendArret("cmdValideModifier", 1);
  Saisit("txtImageModifier", "/nulle/part.png");
  AttendArret("cmdValideModifier", 2);
  Clique(Le("Option2(0)"));
  Saisit("txtSaisieFamilleModifier", "");
  AttendArret("cmdValideModifier", 1);
  Saisit("txtSaisieFamilleModifier", "vide");
  AttendArret("cmdValideModifier", 1);
  Saisit("txtSaisieFamilleModifier", "POTAGES");
  AttendArret("cmdValideModifier", 0);
}

TEST_F(PointeurRecettes, RevientALaFlecheQuandOnRenonceASupprimer) {
  b.AjouteRecette(2, "Soupe");
  Ouvre(4);
  b.messages.reponses = {Reponse::non};
  AttendArret("cmdSupprimer", 0);
}

TEST_F(PointeurRecettes, EstUnSablierPendantUnAjout) {
  Ouvre(2);
  Saisit("txtSaisieNomRecette", "Soupe");
  Saisit("txtSaisieRecetteAjouter", "Texte.");
  Le<QLineEdit>("txtImageAjouter").setText(VersQt(PoseImage("a.png")));
  AttendSablierToutAuLong([this] { Clique(Le("cmdValideAjouter")); });
  CliqueOnglet(*fenetre, 2);
  Clique(Le("Option1(0)"));
  Saisit("txtSaisieFamille", "Poissons");
  AttendSablierToutAuLong([this] { Clique(Le("cmdValideAjouter")); });
}

TEST_F(PointeurRecettes, EstUnSablierPendantUneModification) {
  Ouvre(3);
  Choisit(Le<QComboBox>("ComboFamillesModifier"), Fr("Vide"));
  Saisit("txtSaisieRecetteModifier", "Un texte plus long.");
  Tape(Le("txtImageModifier"), VersQt(PoseImage("a.png")));
  AttendSablierToutAuLong([this] { Clique(Le("cmdValideModifier")); });
  EXPECT_EQ(familles().currentText(), "Vide");
  CliqueOnglet(*fenetre, 3);
  Clique(Le("Option2(0)"));
  Saisit("txtSaisieFamilleModifier", "Pleine");
  AttendSablierToutAuLong([this] { Clique(Le("cmdValideModifier")); });
}

TEST_F(PointeurRecettes, EstUnSablierPendantUneSuppression) {
  b.AjouteRecette(3, "Soupe");
  b.AjouteRecette(3, "Tarte");
  Ouvre();
  Choisit(familles(), Fr("Vide"));
  CliqueOnglet(*fenetre, 4);
  b.messages.reponses = {Reponse::oui, Reponse::oui};
  AttendSablierToutAuLong([this] { Clique(Le("cmdSupprimer")); });
  CliqueOnglet(*fenetre, 4);
  Clique(Le("Option3(0)"));
  AttendSablierToutAuLong([this] { Clique(Le("cmdSupprimer")); });
  EXPECT_EQ(Textes(familles()), QStringList{"Potages"});
}

}  // namespace
}  // namespace gastrelle::essai
