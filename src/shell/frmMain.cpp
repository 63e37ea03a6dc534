#include "shell/frmMain.h"

#include <cstdlib>
#include <utility>

#include <QCloseEvent>

#include "controles/Adresses.h"
#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "data/Courses.h"
#include "data/ProceduresFichiers.h"
#include "maintenance/frmPreferences.h"
#include "maintenance/frmProprietes.h"
#include "maintenance/frmReinitialisation.h"
#include "maintenance/frmSauvegarde.h"
#include "maintenance/frmSuppRecette.h"
#include "recherche/frmRechercher.h"
#include "shell/AireFenetres.h"
#include "shell/CommandesEdition.h"
#include "shell/Disposition.h"
#include "shell/ImageAssociee.h"
#include "shell/frmAbout.h"
#include "shell/frmImage.h"
#include "sortie/Impression.h"
#include "sortie/frmExport.h"

namespace gastrelle {

frmMain::frmMain(Module1& module, Clavier& clavier)
    : module_(module),
      enfants_(new AireFenetres(this)),
      barres_(*this),
      statut_(new BarreStatut(clavier, this)),
      fenetres_(module, *this, *enfants_),
      geometrie_(*this),
      aide_(module) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(VersQt(titreApplication));
  setCentralWidget(enfants_);
  setProperty(proprieteSujet, QStringLiteral("cadre"));
  // The bars come and go through their entries, whose check marks tell what is shown.
  setContextMenuPolicy(Qt::NoContextMenu);
  setStatusBar(statut_);
  enfants_->setObjectName(QStringLiteral("MDIClient"));
  BrancheCommandes();
  BrancheFenetres();
  fenetres_.Montre(EntreeVue::recettes);
}

frmMain::~frmMain() {
  aide_.Quitte();
}

void frmMain::BrancheCommandes() {
  const auto edition = [&](const char* entree, Edition commande) {
    barres_.SurCommande(entree, [this, commande] {
      Edite(commande, ControleEnUsage(), module_.services.messages);
    });
  };
  edition("mnuEditCut", Edition::couper);
  edition("mnuEditCopy", Edition::copier);
  edition("mnuEditPaste", Edition::coller);
  edition("mnuEditSelect", Edition::toutSelectionner);

  barres_.SurCommande("mnuFilePrint", [this] { Imprime(); });
  barres_.SurCommande("mnuFileExport", [this] { Ouvre(frmExport(module_, this)); });
  barres_.SurCommande("mnuEditEnvoyerTtx", [this] { Envoie(Extension::doc); });
  barres_.SurCommande("mnuEditEnvoyerNotePad", [this] { Envoie(Extension::txt); });
  barres_.SurCommande("mnuFilePreferences", [this] { Ouvre(frmPreferences(module_, this)); });
  barres_.SurCommande("mnuFileProperties",
                      [this] { Maintient(FrmProprietes(module_, *this, this)); });
  barres_.SurCommande("mnuFilePropertiesSupp",
                      [this] { Maintient(frmSuppRecette(module_, *this, this)); });
  barres_.SurCommande("mnuFilePropertiesReini",
                      [this] { Maintient(frmReinitialisation(module_, *this, this)); });
  barres_.SurCommande("mnuEditRechercher", [this] { Cherche(); });
  barres_.SurCommande("mnuFileExit", [this] { close(); });
  barres_.SurCommande("mnuViewBarreOutils",
                      [this] { Bascule("mnuViewBarreOutils", barres_.barre()); });
  barres_.SurCommande("mnuViewBarreStatut", [this] { Bascule("mnuViewBarreStatut", *statut_); });
  barres_.SurCommande("mnuViewImageVisuAssocie",
                      [this] { OuvreImageAssociee(module_, ImageAffichee()); });
  barres_.SurCommande("mnuViewImageVisuInterne", [this] { MontreImage(); });
  barres_.SurCommande("mnuHelpContents", [this] { OuvreAide(); });
  barres_.SurCommande("mnuHelpGlSurLeWeb", [this] { OuvreLien(module_, Lien::site); });
  barres_.SurCommande("mnuHelpAbout", [this] { Ouvre(frmAbout(module_, this)); });
  barres_.Entree("mnuViewBarreOutils").setChecked(true);
  barres_.Entree("mnuViewBarreStatut").setChecked(true);
}

void frmMain::BrancheFenetres() {
  for (std::size_t i = 0; i < nombreVues; ++i) {
    const auto vue = static_cast<EntreeVue>(i);
    barres_.SurCommande(NomEntree(vue), [this, vue] { fenetres_.Montre(vue); });
  }
  const auto dispose = [&](const char* entree, Disposition disposition) {
    barres_.SurCommande(entree, [this, disposition] { Dispose(*enfants_, disposition); });
  };
  dispose("mnuWindowCascade", Disposition::cascade);
  dispose("mnuWindowTileHorizontal", Disposition::mosaiqueHorizontale);
  dispose("mnuWindowTileVertical", Disposition::mosaiqueVerticale);
  dispose("mnuWindowArrangeIcons", Disposition::icones);
  barres_.SurCommande("mnuWindowClose", [this] { fenetres_.Decharge(); });
  QMenu& menu = barres_.Menu("mnuWindow");
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { fenetres_.Enumere(menu); });
}

void frmMain::Bascule(const char* entree, QWidget& barre) {
  QAction& action = barres_.Entree(entree);
  action.setChecked(!action.isChecked());
  barre.setVisible(action.isChecked());
}

void frmMain::Decharge(EntreeVue derniere) {
  Enregistre();
  fenetres_.Decharge(derniere);
}

void frmMain::AnnonceRecettesChangees() {
  setProperty("Tag", QStringLiteral("ok"));
}

int frmMain::Ouvre(QDialog&& dialogue) {
  const int issue = dialogue.exec();
  // A message and the dialog under it that go together leave some desktops without a window.
  activateWindow();
  return issue;
}

void frmMain::Maintient(QDialog&& dialogue) {
  Ouvre(std::move(dialogue));
  if (property("Tag").toString() == QLatin1String("ok")) {
    fenetres_.MontreMaximisee(EntreeVue::recettes);
    setProperty("Tag", QString());
  }
}

void frmMain::Cherche() {
  if (FenetreEnfant* fenetre = fenetres_.EnContexte()) {
    module_.services.pointeur.Sablier();
    if (Ouvre(frmRechercher(module_, *fenetre, this)) == QDialog::Accepted) {
      fenetres_.Deplie(fenetre->description().vue);
    }
    if (module_.erreurFatale) {
      ErreurFatale(module_);
    }
  }
}

QWidget* frmMain::ControleEnUsage() const {
  const FenetreEnfant* active = fenetres_.active();
  return active == nullptr ? nullptr : active->focusWidget();
}

Vue frmMain::VueAffichee() const {
  const FenetreEnfant* fenetre = fenetres_.EnContexte();
  return fenetre == nullptr ? Vue{} : fenetre->VueCourante();
}

std::string frmMain::ImageAffichee() const {
  const Vue vue = VueAffichee();
  const auto* recette = std::get_if<VueRecette>(&vue);
  return recette == nullptr ? std::string{} : recette->image;
}

void frmMain::Imprime() {
  module_.services.pointeur.Sablier();
  if (FenetreEnfant* fenetre = fenetres_.EnContexte()) {
    fenetre->RangeSaisie();
  }
  ImprimeVue(module_, VueAffichee());
}

void frmMain::Envoie(Extension extension) {
  module_.services.pointeur.Sablier();
  EnvoieDocument(module_, VueAffichee(), extension);
}

void frmMain::MontreImage() {
  module_.services.pointeur.Sablier();
  Ouvre(frmImage(module_, ImageAffichee(), this));
}

void frmMain::OuvreAide() {
  if (module_.fichierAide.empty()) {
    module_.services.messages.Informe(
        "Impossible d'afficher le sommaire de l'Aide. Aucune Aide n'est associée à ce projet."_1252,
        Icone::information);
    return;
  }
  aide_.Ouvre(sujetAccueil);
}

void frmMain::PoseContexte(std::int16_t code) {
  module_.contexteActif = code;
  barres_.Applique(MotifDuContexte(code));
}

void frmMain::QuitteContexte(EntreeVue vue) {
  module_.contexteActif = sansContexte;
  barres_.Entree(NomEntree(vue)).setChecked(false);
  if (vue == EntreeVue::mesCourses) {
    barres_.Entree(NomEntree(EntreeVue::mesNotes)).setChecked(false);
  }
  barres_.Applique(MotifDeSortie(vue));
}

void frmMain::Coche(EntreeVue vue) {
  barres_.Entree(NomEntree(vue)).setChecked(true);
}

void frmMain::PermetImage(bool permise) {
  barres_.Permet(Colonne::image, permise);
}

bool frmMain::event(QEvent* evenement) {
  if (evenement->type() == QEvent::WindowActivate) {
    module_.services.pointeur.Normal();
    statut_->Rafraichit();
    geometrie_.Ajuste();
  }
  // A maximised child window would add its own title to the frame's.
  const QString titre = VersQt(titreApplication);
  if (evenement->type() == QEvent::WindowTitleChange && windowTitle() != titre) {
    setWindowTitle(titre);
  }
  return QMainWindow::event(evenement);
}

void frmMain::closeEvent(QCloseEvent* evenement) {
  evenement->accept();
  if (std::exchange(fermee_, true)) {
    return;
  }
  fenetres_.Decharge();
  aide_.Quitte();
  RetientPlace();
  hide();
  SauveCourses(module_);
  ecrite_ = true;
  if (module_.prefs[0].sansCopie == 0) {
    frmSauvegarde(module_).exec();
  }
  if (surFin) {
    surFin();
  }
}

void frmMain::RetientPlace() const {
  if (!isMinimized()) {
    geometrie_.Retient();
  }
}

void frmMain::Enregistre() {
  if (!ecrite_ && !module_.erreurFatale) {
    fenetres_.EnregistreTout();
    SauveCourses(module_);
  }
}

void frmMain::Arrete() {
  Enregistre();
  if (!ecrite_ && !module_.erreurFatale) {
    RetientPlace();
  }
  module_.services.processus.Termine(module_.erreurFatale ? EXIT_FAILURE : EXIT_SUCCESS);
}

}  // namespace gastrelle
