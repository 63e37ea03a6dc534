// The frame: opening and closing windows, what they allow, its own commands.

#include <QClipboard>
#include <QContextMenuEvent>
#include <QTest>

#include "doublures/CadreVrai.h"
#include "doublures/EcranVirtuel.h"

namespace gastrelle::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Cadre : public CadreVrai {};

TEST_F(Cadre, SOuvreSurLesRecettesMaximisees) {
  Ouvre();
  EXPECT_EQ(cadre->windowTitle(), "Gastrelle 2005");
  EXPECT_TRUE(recettes().isMaximized());
  EXPECT_EQ(b.module->contexteActif, 11);
  EXPECT_TRUE(Entree("mnuViewRecettes").isChecked());
  EXPECT_FALSE(b.module->premiereOuverture);
}

TEST_F(Cadre, CommenceLeClavierDansLeTexteDeLaRecette) {
  Ouvre();
  EXPECT_EQ(QApplication::focusWidget(), &Le("txtRecette"));
  if (QGuiApplication::platformName() == "offscreen" && EcranVirtuel::Possible()) {
    EXPECT_EQ(RejoueSurEcranVirtuel("Cadre.CommenceLeClavierDansLeTexteDeLaRecette"), 0);
  }
}

TEST_F(Cadre, CommenceAussiLeClavierDansLeTexteEnTailleNormale) {
  Ouvre({1, 0, 1});
  EXPECT_EQ(QApplication::focusWidget(), &Le("txtRecette"));
}

TEST_F(Cadre, ToutNombreAutreQueZeroOuvreLesRecettesEnTailleNormale) {
  for (const std::int16_t nombre : {std::int16_t{1}, std::int16_t{-1}}) {
    Ouvre({nombre, 0, 1});
    EXPECT_FALSE(recettes().isMaximized()) << nombre;
    cadre->close();
    cadre.reset();
  }
}

TEST_F(Cadre, LaListeDesRecettesPermetDImprimerDeCopierEtDeChercher) {
  Ouvre();
  for (const char* nom :
       {"mnuFilePrint", "mnuEditCopy", "mnuEditSelect", "mnuEditRechercher", "mnuEditEnvoyer"}) {
    EXPECT_TRUE(Permis(nom)) << nom;
  }
  for (const char* nom : {"mnuEditCut", "mnuEditPaste", "mnuViewImage"}) {
    EXPECT_FALSE(Permis(nom)) << nom;
  }
  for (const char* cle : {"Print", "Copier", "Find", "Ttx", "Notepad"}) {
    EXPECT_TRUE(BoutonBarre(cle).isEnabled()) << cle;
  }
  for (const char* cle : {"Couper", "Coller"}) {
    EXPECT_FALSE(BoutonBarre(cle).isEnabled()) << cle;
  }
}

TEST_F(Cadre, ChaqueOngletPoseSonMotif) {
  Ouvre();
  CliqueOnglet(Le("frmRecettes"), 2);
  EXPECT_EQ(b.module->contexteActif, 12);
  EXPECT_TRUE(BoutonBarre("Coller").isEnabled());
  EXPECT_FALSE(BoutonBarre("Print").isEnabled());
  EXPECT_TRUE(Permis("mnuEditSelect"));  // left as the list had it
  CliqueOnglet(Le("frmRecettes"), 5);
  EXPECT_FALSE(Permis("mnuEditSelect"));
  CliqueOnglet(Le("frmRecettes"), 2);
  EXPECT_FALSE(Permis("mnuEditSelect"));  // left as the classification had it
}

TEST_F(Cadre, UneImagePresentePermetDeLaVoir) {
  b.AjouteRecette(2, "Avec", {}, "/a.png");
  std::filesystem::create_directory(b.dossier.chemin() / "IMAGE");
  b.dossier.Ecrit("IMAGE/a.png", "x");
  Ouvre();
  EXPECT_TRUE(Permis("mnuViewImage"));
  CliqueOnglet(Le("frmRecettes"), 3);
  EXPECT_FALSE(Permis("mnuViewImage"));
  CliqueOnglet(Le("frmRecettes"), 1);
  EXPECT_TRUE(Permis("mnuViewImage"));
}

TEST_F(Cadre, SonActivationRendLaFlecheAuPointeur) {
  Ouvre();
  b.pointeur.Sablier();
  QEvent activation(QEvent::WindowActivate);
  QApplication::sendEvent(cadre.get(), &activation);
  EXPECT_FALSE(b.pointeur.sablier);
}

TEST_F(Cadre, RevenirAuxRecettesActivesNeChangeRienPasMemeLePointeur) {
  Ouvre();
  b.pointeur.Sablier();
  Choisit("mnuViewRecettes");
  EXPECT_TRUE(b.pointeur.sablier);
  EXPECT_TRUE(Entree("mnuViewRecettes").isChecked());
  EXPECT_THAT(b.disque.journal(), IsEmpty());
}

TEST_F(Cadre, FermerLesRecettesEteintLeCadre) {
  Ouvre();
  recettes().close();
  QApplication::processEvents();
  EXPECT_EQ(b.module->contexteActif, 0);
  EXPECT_FALSE(Entree("mnuViewRecettes").isChecked());
  for (const char* nom : {"mnuFilePrint", "mnuEditCopy", "mnuEditSelect", "mnuEditRechercher",
                          "mnuEditEnvoyer", "mnuViewImage"}) {
    EXPECT_FALSE(Permis(nom)) << nom;
  }
  for (const char* cle : {"Print", "Copier", "Find", "Ttx", "Notepad"}) {
    EXPECT_FALSE(BoutonBarre(cle).isEnabled()) << cle;
  }
}

TEST_F(Cadre, LesRecettesFermeesSeRouvrentParLeBouton) {
  Ouvre();
  recettes().close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  Clique(BoutonBarre("Recette"));
  QApplication::processEvents();
  EXPECT_EQ(b.module->contexteActif, 11);
  EXPECT_TRUE(recettes().isMaximized());
}

TEST_F(Cadre, UneFenetreReduiteNeChangeRienAuCadreEtSeRetablit) {
  Ouvre();
  recettes().showMinimized();
  QApplication::processEvents();
  EXPECT_EQ(b.module->contexteActif, 11);
  b.module->contexteActif = 0;
  Choisit("mnuViewRecettes");
  EXPECT_FALSE(recettes().isMinimized());
  EXPECT_EQ(b.module->contexteActif, 11);
}

TEST_F(Cadre, LActivationAvecUneErreurFataleFinitLeProgramme) {
  Ouvre();
  recettes().showMinimized();
  QApplication::processEvents();
  b.module->erreurFatale = true;
  recettes().showNormal();
  QApplication::processEvents();
  EXPECT_EQ(FinVue(), 1);
}

TEST_F(Cadre, ToutFermerDechargeLesFenetres) {
  Ouvre();
  Choisit("mnuWindowClose");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_THAT(enfants().subWindowList(), IsEmpty());
  EXPECT_EQ(b.module->contexteActif, 0);
}

TEST_F(Cadre, LeMenuFenetreListeLesFenetresOuvertes) {
  Ouvre();
  emit Le<QMenu>("mnuWindow").aboutToShow();
  const QList<QAction*> actions = Le<QMenu>("mnuWindow").actions();
  EXPECT_EQ(actions.last()->text(), "&1 Les recettes");
  EXPECT_TRUE(actions.last()->isChecked());
  emit Le<QMenu>("mnuWindow").aboutToShow();
  EXPECT_EQ(Le<QMenu>("mnuWindow").actions().size(), actions.size());
}

TEST_F(Cadre, CopierMetLaSelectionAuPressePapiers) {
  Ouvre();
  Le("txtRecette").setFocus();
  Choisit("mnuEditSelect");
  Clique(BoutonBarre("Copier"));
  EXPECT_EQ(QApplication::clipboard()->text(), Fr("Un velouté."));
}

TEST_F(Cadre, CopierSansSelectionBipeEtGardeLePressePapiers) {
  Ouvre();
  QApplication::clipboard()->setText("gardé");
  Le("txtRecette").setFocus();
  Clique(BoutonBarre("Copier"));
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(QApplication::clipboard()->text(), Fr("gardé"));
}

TEST_F(Cadre, CouperPrendLaSelectionEtCollerLaRemet) {
  Ouvre();
  CliqueOnglet(Le("frmRecettes"), 2);
  Le("txtSaisieNomRecette").setFocus();
  Tape(Le("txtSaisieNomRecette"), "Soupe");
  Choisit("mnuEditSelect");
  Clique(BoutonBarre("Couper"));
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "");
  EXPECT_EQ(QApplication::clipboard()->text(), "Soupe");
  Clique(BoutonBarre("Coller"));
  Clique(BoutonBarre("Coller"));
  EXPECT_EQ(Texte(Le("txtSaisieNomRecette")), "SoupeSoupe");
}

TEST_F(Cadre, CouperSansSelectionVideLePressePapiers) {
  Ouvre();
  QApplication::clipboard()->setText("x");
  CliqueOnglet(Le("frmRecettes"), 2);
  Le("txtSaisieNomRecette").setFocus();
  Clique(BoutonBarre("Couper"));
  EXPECT_EQ(QApplication::clipboard()->text(), "");
  EXPECT_EQ(b.messages.bips, 0);
}

TEST_F(Cadre, CouperDansUneListeBipeEtNeChangeRien) {
  Ouvre();
  CliqueOnglet(Le("frmRecettes"), 2);
  QApplication::clipboard()->setText("x");
  Le("ComboFamillesAjouter").setFocus();
  Clique(BoutonBarre("Couper"));
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(QApplication::clipboard()->text(), "x");
}

TEST_F(Cadre, CollerDansUneBoiteEnLectureSeuleBipe) {
  Ouvre();
  CliqueOnglet(Le("frmRecettes"), 2);
  QApplication::clipboard()->setText("a.jpg");
  Le("txtImageAjouter").setFocus();
  Clique(BoutonBarre("Coller"));
  EXPECT_EQ(b.messages.bips, 1);
  EXPECT_EQ(Texte(Le("txtImageAjouter")), "");
}

TEST_F(Cadre, LesBarresSeCachentEtReviennentAvecLeurCoche) {
  Ouvre();
  EXPECT_TRUE(Entree("mnuViewBarreOutils").isChecked());
  Choisit("mnuViewBarreOutils");
  EXPECT_FALSE(Le("tbToolBar").isVisible());
  EXPECT_FALSE(Entree("mnuViewBarreOutils").isChecked());
  Choisit("mnuViewBarreOutils");
  EXPECT_TRUE(Le("tbToolBar").isVisible());
  Choisit("mnuViewBarreStatut");
  EXPECT_FALSE(Le("StatusBar1").isVisible());
  EXPECT_FALSE(Entree("mnuViewBarreStatut").isChecked());
}

TEST_F(Cadre, AucunMenuContextuelNeMontreNiNeCacheLesBarres) {
  Ouvre();
  for (const char* nom : {"tbToolBar", "StatusBar1", "MDIClient"}) {
    QContextMenuEvent clicDroit(QContextMenuEvent::Mouse, QPoint(5, 5),
                                Le(nom).mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&Le(nom), &clicDroit);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << nom;
  }
  EXPECT_EQ(cadre->contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_F(Cadre, LesPanneauxDisentLesVerrousDuClavier) {
  clavier.verrous = Verrous{true, false};
  Ouvre();
  EXPECT_TRUE(Le("StatusBar1.Maj").isEnabled());
  EXPECT_FALSE(Le("StatusBar1.Num").isEnabled());
  clavier.verrous = Verrous{false, true};
  QTest::keyClick(&Le("txtRecette"), Qt::Key_NumLock);
  EXPECT_FALSE(Le("StatusBar1.Maj").isEnabled());
  EXPECT_TRUE(Le("StatusBar1.Num").isEnabled());
  EXPECT_EQ(Le("StatusBar1.Maj").accessibleDescription(),
            Fr("Verrouillage des majuscules : désactivé"));
  EXPECT_EQ(Le("StatusBar1.Num").accessibleDescription(),
            Fr("Verrouillage du pavé numérique : activé"));
  EXPECT_EQ(Le("StatusBar1").accessibleName(), "Barre de statuts");
  EXPECT_EQ(Texte(Le("StatusBar1.Maj")), "Maj");
  EXPECT_EQ(Texte(Le("StatusBar1.Num")), "Num");
}

class AvecImage : public CadreVrai {
 protected:
  AvecImage() {
    b.AjouteRecette(2, "Avec", {}, "/a.png");
    std::filesystem::create_directory(b.dossier.chemin() / "IMAGE");
    b.dossier.Ecrit("IMAGE/a.png", "x");
  }
};

TEST_F(AvecImage, LeVisualisateurAssocieOuvreLeFichier) {
  Ouvre();
  Choisit("mnuViewImageVisuAssocie");
  EXPECT_THAT(b.association.cibles, ElementsAre((b.dossier.chemin() / "IMAGE/a.png").string()));
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(AvecImage, SansAssociationLeVisualisateurLeDit) {
  b.association.reponse = Ouverture::aucuneAssociation;
  Ouvre();
  Choisit("mnuViewImageVisuAssocie");
  EXPECT_THAT(
      b.messages.vus,
      ElementsAre(MessageVu{DepuisUtf8("Aucune association n'est définie pour afficher l'image"),
                            Icone::information, "Gastrelle 2005"}));
}

TEST_F(AvecImage, UneImagePartieEntreTempsEstDiteEtLEntreeResteActive) {
  Ouvre();
  b.dossier.Supprime("IMAGE/a.png");
  Choisit("mnuViewImageVisuAssocie");
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{"Fichier\r\n" + b.module->chemins.De("IMAGE/a.png") +
                                        DepuisUtf8("\r\nnon trouvé."),
                                    Icone::critique, "Gastrelle 2005"}));
  EXPECT_TRUE(Permis("mnuViewImage"));
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

TEST_F(AvecImage, HorsDeLaListeLeVisualisateurAssocieNeFaitRien) {
  Ouvre();
  b.module->contexteActif = 12;
  Choisit("mnuViewImageVisuAssocie");
  EXPECT_THAT(b.association.cibles, IsEmpty());
}

TEST_F(Cadre, LeSiteSOuvreParSonAssociation) {
  Ouvre();
  Choisit("mnuHelpGlSurLeWeb");
  EXPECT_THAT(b.association.cibles,
              ElementsAre("file://" + (b.dossier.chemin() / "presentation.html").string()));
}

TEST_F(Cadre, UnePageDePresentationQuiManqueSeTait) {
  Ouvre();
  b.association.reponse = Ouverture::echec;
  Choisit("mnuHelpGlSurLeWeb");
  EXPECT_THAT(b.messages.vus, IsEmpty());
}

TEST_F(Cadre, SansNavigateurLeSiteLeDit) {
  Ouvre();
  b.association.reponse = Ouverture::aucuneAssociation;
  Choisit("mnuHelpGlSurLeWeb");
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{
                  DepuisUtf8("Aucune association n'est définie pour naviguer sur Internet"),
                  Icone::information, "Gastrelle 2005"}));
}

TEST_F(Cadre, SansFichierDAideLeSommaireLeDit) {
  Ouvre();
  b.module->fichierAide.clear();
  Clique(BoutonBarre("Help"));
  EXPECT_THAT(b.messages.vus,
              ElementsAre(MessageVu{DepuisUtf8("Impossible d'afficher le sommaire de l'Aide. "
                                               "Aucune Aide n'est associée à ce projet."),
                                    Icone::information, "Gastrelle 2005"}));
}

TEST_F(Cadre, LaMarqueOkRouvreLesRecettesMaximisees) {
  Ouvre();
  recettes().close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  b.module->prefs[0].fenetreNormale = 1;
  AvecDialogue([&] { Choisit("mnuFileProperties"); },
               [&](QDialog&) { cadre->AnnonceRecettesChangees(); });
  EXPECT_TRUE(recettes().isMaximized());
  EXPECT_EQ(cadre->property("Tag").toString(), "");
}

TEST_F(Cadre, SansMarqueLaMaintenanceNeRouvreRien) {
  Ouvre();
  Choisit("mnuWindowClose");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  AvecDialogue([&] { Choisit("mnuFilePropertiesReini"); }, [](QDialog&) {});
  EXPECT_THAT(enfants().subWindowList(), IsEmpty());
}

}  // namespace
}  // namespace gastrelle::essai
