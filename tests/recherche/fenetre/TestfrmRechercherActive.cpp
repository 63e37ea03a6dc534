// What becomes of a hit in the window behind, and of a search that fails.

#include <QTimer>

#include "recherche/fenetre/DialogueRecherche.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ActivationDUneFiche : public DialogueRecherche {
 protected:
  void ActiveApres(const QString& quoi, int suites = 0) {
    AvecRecherche([&](const VueDialogue& vue) {
      vue.Cherche(quoi);
      for (int i = 0; i < suites; ++i) {
        vue.Continue();
      }
      Clique(vue.Du("cmdActiver"));
      EXPECT_FALSE(vue.visible());
    });
  }
  /// The bytes of the working record, and of a record on file.
  std::string DeTravail() {
    switch (ligne.fiches) {
      case Donnees::GLR2:
        return Octets(b.module->bufRecette.courant());
      case Donnees::GLM1:
        return Octets(b.module->bufMenu.courant());
      default:
        return Octets(b.module->bufTruc.courant());
    }
  }
  std::string SurFichier(std::int32_t numero) {
    const std::string octets = b.dossier.Lit(Nom(ligne.fiches));
    const std::size_t taille = DeTravail().size();
    return octets.substr((static_cast<std::size_t>(numero) - 1) * taille, taille);
  }
};
INSTANTIATE_TEST_SUITE_P(Fenetres, ActivationDUneFiche, testing::ValuesIn(lignesRecherche),
                         NomDeLaLigne);

TEST_P(ActivationDUneFiche, LaMontreDansSaFenetreQuelleQuElleSoit) {
  OuvreTrois();
  b.messages.pendant = [] { ADD_FAILURE() << "un message"; };
  const std::array<std::int32_t, 3> numeros{dansLeTitre, dansLeTexte, encore};
  const std::array<const char*, 3> titres{"Muscade rapée", "Soupe", "Gratin à la muscade"};
  const std::array<const char*, 3> textes{"Rien d'autre.", "De la noix de MUSCADE.\nUn peu.", ""};
  for (std::size_t i = 0; i < numeros.size(); ++i) {
    ActiveApres("muscade", static_cast<int>(i));
    EXPECT_EQ(NumeroAffiche(), numeros[i]);
    EXPECT_EQ(Texte(Le(ligne.liste)), Fr(titres[i]));
    EXPECT_EQ(Texte(Le(ligne.texte)), textes[i]);
    EXPECT_EQ(DeTravail(), SurFichier(numeros[i]));
    EXPECT_EQ(cadre->focusWidget(), &Le(ligne.texte));
    EXPECT_EQ(Trouve<QTabBar>(*enfants().activeSubWindow(), "TabStrip1").currentIndex(), 0);
    EXPECT_TRUE(Permis("mnuEditRechercher"));
    EXPECT_FALSE(b.pointeur.sablier);
  }
  EXPECT_THAT(b.disque.changements(), IsEmpty());
}

TEST_P(ActivationDUneFiche, CelleQuiEstDejaAffichee) {
  OuvreTrois();
  ActiveApres("noix");
  ActiveApres("noix");
  EXPECT_EQ(NumeroAffiche(), dansLeTexte);
  EXPECT_EQ(DeTravail(), SurFichier(dansLeTexte));
}

TEST_P(ActivationDUneFiche, SeFaitSousLeSablier) {
  OuvreTrois();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("noix");
    b.pointeur.sabliers = 0;
    bool premier = true;
    b.disque.pendant = [&](const std::string&) {
      EXPECT_TRUE(!std::exchange(premier, false) || b.pointeur.sablier);
    };
    Clique(vue.Du("cmdActiver"));
    EXPECT_FALSE(premier);
    EXPECT_FALSE(b.pointeur.sablier);
  });
}

TEST_P(ActivationDUneFiche, CeQuElleMontreSeModifieEnsuite) {
  OuvreTrois();
  ActiveApres("noix");
  QWidget& fenetre = *enfants().activeSubWindow();
  CliqueOnglet(fenetre, 3);
  for (auto* boite : Trouve(fenetre, "Frame1(3)").findChildren<QLineEdit*>()) {
    if (boite->objectName().startsWith("txtSaisieNom")) {
      EXPECT_EQ(boite->text(), "Soupe");
      Remplace(*boite, "Velours");
    }
  }
  Clique(Trouve(fenetre, "cmdValideModifier"));
  ActiveApres("noix");
  EXPECT_EQ(NumeroAffiche(), dansLeTexte);
  EXPECT_EQ(Texte(Le(ligne.liste)), "Velours");
  EXPECT_EQ(Texte(Le(ligne.texte)), "De la noix de MUSCADE.\nUn peu.");
}

// A search that fails.

class PanneDeRecherche : public ActivationDUneFiche {
 protected:
  /// The dialog goes without a word of its own, then the program ends.
  void FinitPar(const std::function<void(const VueDialogue&)>& gestes,
                std::vector<MessageVu> messages = {}) {
    b.messages.bips = 0;
    bool ferme = false;
    OublieFin();
    // From an event, as a user's choice is: the end crosses the toolkit.
    QTimer::singleShot(0, [&] {
      AvecRecherche([&](const VueDialogue& vue) {
        gestes(vue);
        ferme = !vue.visible();
        EXPECT_TRUE(b.module->erreurFatale);
      });
    });
    EXPECT_TRUE(QTest::qWaitFor([] { return FinVue().has_value(); }));
    EXPECT_EQ(FinVue(), 1);
    EXPECT_TRUE(ferme);
    messages.push_back(Fatal());
    EXPECT_EQ(b.messages.vus, messages);
    EXPECT_EQ(b.messages.bips, 1);
    EXPECT_FALSE(b.pointeur.sablier);
    EXPECT_THAT(b.disque.changements(), IsEmpty());
  }
};
INSTANTIATE_TEST_SUITE_P(Fenetres, PanneDeRecherche, testing::ValuesIn(lignesRecherche),
                         NomDeLaLigne);

TEST_P(PanneDeRecherche, ALaPremiereEtape) {
  OuvreTrois();
  b.disque.EchoueSur("lit " + Nom(ligne.fiches), Panne::entreeSortie);
  FinitPar([](const VueDialogue& vue) { vue.Cherche("muscade"); });
}

TEST_P(PanneDeRecherche, DansUnTexte) {
  OuvreTrois();
  b.disque.EchoueSur("lit " + Nom(ligne.textes), Panne::entreeSortie);
  FinitPar([](const VueDialogue& vue) { vue.Cherche("muscade"); });
}

TEST_P(PanneDeRecherche, UneEtapePlusLoin) {
  OuvreTrois();
  FinitPar([&](const VueDialogue& vue) {
    vue.Cherche("muscade");
    b.disque.EchoueSur("lit " + Nom(ligne.fiches), Panne::entreeSortie);
    vue.Continue();
  });
}

TEST_P(PanneDeRecherche, AvantDeContinuer) {
  OuvreTrois();
  FinitPar([&](const VueDialogue& vue) {
    vue.Cherche("muscade");
    b.disque.EchoueSur("longueur " + Nom(ligne.fiches), Panne::entreeSortie);
    vue.Continue();
  });
}

TEST_P(PanneDeRecherche, UnFichierQuiManqueSeDitAvant) {
  for (const Donnees fichier : {ligne.fiches, ligne.textes}) {
    OuvreTrois();
    const std::string octets = b.dossier.Lit(Nom(fichier));
    b.dossier.Supprime(Nom(fichier));
    FinitPar([](const VueDialogue& vue) { vue.Cherche("muscade"); },
             {essai::NonTrouve(b, Nom(fichier))});
    if (fichier == ligne.textes) {
      break;
    }
    b.dossier.Ecrit(Nom(fichier), octets);
    cadre.reset();
    b.module = std::make_unique<Module1>(b.module->services, b.module->chemins);
  }
}

TEST_P(PanneDeRecherche, EnActivantUneFicheQueLaListeNAPas) {
  OuvreTrois();
  if (ligne.fiches == Donnees::GLR2) {
    // Its family is gone: no list holds the recipe any more.
    RecRecette recette;
    b.module->bufRecette.Lit(dansLeTexte, recette);
    recette.idFamille = 99;
    b.module->bufRecette.Ecrit(dansLeTexte, recette);
  } else {
    // It came to the file once the window had its list.
    b.AjouteFiche(ligne.fiches, "Nouvelle", "Une noix de plus.");
    auto& fichier = ligne.fiches == Donnees::GLM1 ? b.module->bufMenu : b.module->bufTruc;
    ++fichier.nbActifs();
  }
  b.disque.OublieJournal();
  FinitPar([&](const VueDialogue& vue) {
    vue.Cherche(ligne.fiches == Donnees::GLR2 ? "noix" : "noix de plus");
    EXPECT_TRUE(vue.visible());
    EXPECT_FALSE(b.module->erreurFatale);
    Clique(vue.Du("cmdActiver"));
  });
}

TEST_P(PanneDeRecherche, LaFicheDeTravailResteCelleQuiEstAffichee) {
  OuvreTrois();
  const std::string avant = DeTravail();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("muscade");
    vue.Continue();
    EXPECT_EQ(DeTravail(), avant);
    vue.Continue();
    vue.Continue();
    EXPECT_FALSE(vue.visible());
  });
  EXPECT_EQ(DeTravail(), avant);
}

// Recipes alone have families and pictures.

class ActivationDUneRecette : public ActivationDUneFiche {};
INSTANTIATE_TEST_SUITE_P(Recettes, ActivationDUneRecette, testing::Values(lignesRecherche[0]),
                         NomDeLaLigne);

TEST_P(ActivationDUneRecette, ChoisitSaFamilleEtListeSesRecettes) {
  OuvreTrois();
  ActiveApres("muscade", 1);
  EXPECT_EQ(Texte(Le("ComboFamilles")), "Zestes");
  EXPECT_EQ(Textes(Le<QComboBox>("ComboRecettes")),
            (QStringList{Fr("Gratin à la muscade"), "Soupe"}));
  EXPECT_EQ(b.module->bufRecette.courant().idFamille, familles["Zestes"]);
  ActiveApres("muscade");
  EXPECT_EQ(Texte(Le("ComboFamilles")), Fr("Épices"));
  EXPECT_EQ(Textes(Le<QComboBox>("ComboRecettes")), (QStringList{Fr("Muscade rapée"), "Zut"}));
  EXPECT_EQ(b.module->bufRecette.courant().idFamille, familles["Épices"]);
}

TEST_P(ActivationDUneRecette, VientDUneFamilleSansRecettes) {
  Garnit();
  b.AjouteFamille("Vide");
  OuvreSurLaFenetre();
  essai::Choisit(Le<QComboBox>("ComboFamilles"), "Vide");
  EXPECT_FALSE(Le("ComboRecettes").isEnabled());
  ActiveApres("noix");
  EXPECT_TRUE(Le("ComboRecettes").isEnabled());
  EXPECT_TRUE(Le("txtRecette").isEnabled());
  EXPECT_EQ(NumeroAffiche(), dansLeTexte);
}

TEST_P(ActivationDUneRecette, AmeneSonImageOuNEnALaissePas) {
  OuvreTrois();
  ActiveApres("avec image");
  EXPECT_EQ(Texte(Le("ComboFamilles")), "Desserts");
  EXPECT_TRUE(Le("cmdCameraListe").isEnabled());
  EXPECT_TRUE(Permis("mnuViewImage"));
  ActiveApres("noix");
  EXPECT_FALSE(Le("cmdCameraListe").isEnabled());
  EXPECT_FALSE(Permis("mnuViewImage"));
}

TEST_P(ActivationDUneRecette, DontLImageAPeriLeDitEtLaMontre) {
  OuvreTrois();
  b.dossier.Supprime("IMAGE/a.png");
  ActiveApres("avec image");
  ASSERT_THAT(b.messages.vus, testing::SizeIs(1));
  EXPECT_EQ(b.messages.vus.front().icone, Icone::exclamation);
  EXPECT_EQ(Texte(Le("ComboRecettes")), "Avec image");
  EXPECT_FALSE(Le("cmdCameraListe").isEnabled());
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_P(ActivationDUneFiche, RendSaTailleALaFenetreReduite) {
  OuvreTrois();
  QMdiSubWindow& fenetre = *enfants().activeSubWindow();
  fenetre.showMinimized();
  QApplication::processEvents();
  ASSERT_TRUE(fenetre.isMinimized());
  ActiveApres("muscade");
  EXPECT_FALSE(fenetre.isMinimized());
  EXPECT_EQ(NumeroAffiche(), dansLeTitre);
}

TEST_P(ActivationDUneFiche, UnTexteQuAucuneBoiteNeTientSeMontreParSonDebut) {
  const std::string lignes = "Longue." + std::string(300'000, '\n');
  Garnit();
  Ajoute("Interminable", lignes, "Zestes");
  OuvreSurLaFenetre();
  AvecRecherche([&](const VueDialogue& vue) {
    vue.Cherche("interminable");
    ASSERT_TRUE(vue.visible());
    EXPECT_EQ(vue.titre(), "Interminable");
    EXPECT_TRUE(vue.texte().startsWith(QStringLiteral("Longue.\n")));
    EXPECT_LT(vue.texte().size(), 30'000);
  });
  EXPECT_FALSE(b.module->erreurFatale);
}

}  // namespace
}  // namespace gastrelle::essai
