#include "shell/frmMain.h"

#include <array>

#include <QActionGroup>
#include <QCloseEvent>
#include <QMdiSubWindow>

#include "controles/Adresses.h"
#include "controles/Conversion.h"
#include "controles/Icones.h"
#include "controles/Touches.h"
#include "data/Courses.h"
#include "data/ProceduresFichiers.h"
#include "fiches/frmMenus.h"
#include "fiches/frmTrucs.h"
#include "fromages/frmFromages.h"
#include "maintenance/frmPreferences.h"
#include "maintenance/frmSauvegarde.h"
#include "recettes/frmRecettes.h"
#include "shell/CommandesEdition.h"
#include "shell/Disposition.h"
#include "shell/GeometrieCadre.h"
#include "shell/ImageAssociee.h"
#include "shell/frmAbout.h"
#include "shell/frmImage.h"

namespace gastrelle {
namespace {

/// A child window: its entry in the view menu, its codes, how it is made. One that isn't built yet
/// has nothing to make it.
struct LigneFenetre {
  EntreeVue vue;
  const char* entree;
  std::int16_t apres;  // the codes of the window lie strictly between these two
  std::int16_t avant;
  FenetreEnfant* (*cree)(Module1&, Cadre&);
};

template <class Fenetre>
FenetreEnfant* Cree(Module1& module, Cadre& cadre) {
  return new Fenetre(module, cadre);
}

constexpr std::array<LigneFenetre, nombreVues> fenetres{{
    {EntreeVue::recettes, "mnuViewRecettes", 10, 20, Cree<frmRecettes>},
    {EntreeVue::fromages, "mnuViewFromages", 20, 30, Cree<frmFromages>},
    {EntreeVue::menus, "mnuViewMenus", 30, 40, Cree<frmMenus>},
    {EntreeVue::vins, "mnuViewVins", 40, 50, nullptr},
    {EntreeVue::millesimes, "mnuViewMillesimes", 50, 60, nullptr},
    {EntreeVue::termesTrucsAstuces, "mnuViewTermesTrucsAstuces", 60, 70, Cree<frmTrucs>},
    {EntreeVue::favoris, "mnuViewFavoris", 70, 80, nullptr},
    {EntreeVue::mesNotes, "mnuViewMesNotes", 89, 91, nullptr},
    {EntreeVue::mesCourses, "mnuViewMesCourses", 99, 101, nullptr},
}};

const LigneFenetre& Ligne(EntreeVue vue) {
  return fenetres[static_cast<std::size_t>(vue)];
}

}  // namespace

frmMain::frmMain(Module1& module, Clavier& clavier)
    : module_(module),
      enfants_(new QMdiArea(this)),
      barres_(*this),
      statut_(new BarreStatut(clavier, this)),
      suivi_(*enfants_),
      aide_(module) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(VersQt(titreApplication));
  setWindowIcon(IconeDe(QStringLiteral("gastrelle"), plusGrandeIconeFenetre));
  setCentralWidget(enfants_);
  setProperty(proprieteSujet, QStringLiteral("cadre"));
  // The bars come and go through their entries, whose check marks tell what is shown.
  setContextMenuPolicy(Qt::NoContextMenu);
  setStatusBar(statut_);
  enfants_->setObjectName(QStringLiteral("MDIClient"));
  Place(*this, LitGeometrie());
  BrancheCommandes();
  BrancheFenetres();
  MontreFenetre(EntreeVue::recettes);
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

  barres_.SurCommande("mnuFilePreferences", [this] { frmPreferences(module_, this).exec(); });
  for (const char* entree :
       {"mnuFileProperties", "mnuFilePropertiesSupp", "mnuFilePropertiesReini"}) {
    barres_.SurCommande(entree, [this] { SuiteMaintenance(); });
  }
  barres_.SurCommande("mnuFileExit", [this] { close(); });
  barres_.SurCommande("mnuViewBarreOutils",
                      [this] { Bascule("mnuViewBarreOutils", barres_.barre()); });
  barres_.SurCommande("mnuViewBarreStatut", [this] { Bascule("mnuViewBarreStatut", *statut_); });
  barres_.SurCommande("mnuViewImageVisuAssocie",
                      [this] { OuvreImageAssociee(module_, ImageAffichee()); });
  barres_.SurCommande("mnuViewImageVisuInterne", [this] { MontreImage(); });
  barres_.SurCommande("mnuHelpContents", [this] { OuvreAide(); });
  barres_.SurCommande("mnuHelpGlSurLeWeb", [this] { OuvreLien(module_, Lien::site); });
  barres_.SurCommande("mnuHelpAbout", [this] { frmAbout(module_, this).exec(); });
  barres_.Entree("mnuViewBarreOutils").setChecked(true);
  barres_.Entree("mnuViewBarreStatut").setChecked(true);
}

void frmMain::BrancheFenetres() {
  for (const LigneFenetre& ligne : fenetres) {
    barres_.SurCommande(ligne.entree, [this, vue = ligne.vue] { MontreFenetre(vue); });
  }
  const auto dispose = [&](const char* entree, Disposition disposition) {
    barres_.SurCommande(entree, [this, disposition] { Dispose(*enfants_, disposition); });
  };
  dispose("mnuWindowCascade", Disposition::cascade);
  dispose("mnuWindowTileHorizontal", Disposition::mosaiqueHorizontale);
  dispose("mnuWindowTileVertical", Disposition::mosaiqueVerticale);
  dispose("mnuWindowArrangeIcons", Disposition::icones);
  barres_.SurCommande("mnuWindowClose", [this] { FermeTout(); });
  connect(&barres_.Menu("mnuWindow"), &QMenu::aboutToShow, this, [this] { ListeFenetres(); });
}

void frmMain::MontreFenetre(EntreeVue vue) {
  const LigneFenetre& ligne = Ligne(vue);
  const bool dejaActive =
      ligne.apres < module_.contexteActif && module_.contexteActif < ligne.avant;
  if (dejaActive || ligne.cree == nullptr) {
    return;
  }
  module_.services.pointeur.Sablier();
  QMdiSubWindow* fenetre = FenetreDe(vue);
  if (fenetre == nullptr) {
    fenetre = CreeFenetre(vue);
  } else if (fenetre->isMinimized()) {
    module_.services.pointeur.Normal();
    fenetre->showNormal();
  }
  if (!fenetre->isVisible()) {
    fenetre->show();
  }
  enfants_->setActiveSubWindow(fenetre);
  fenetre->raise();
}

QMdiSubWindow* frmMain::FenetreDe(EntreeVue vue) const {
  const auto trouvee = fenetres_.find(vue);
  return trouvee == fenetres_.end() ? nullptr : qobject_cast<QMdiSubWindow*>(trouvee->second);
}

QMdiSubWindow* frmMain::CreeFenetre(EntreeVue vue) {
  auto* fenetre = new QMdiSubWindow;
  fenetre->setAttribute(Qt::WA_DeleteOnClose);
  fenetre->setWidget(Ligne(vue).cree(module_, *this));
  fenetre->setWindowIcon(windowIcon());
  enfants_->addSubWindow(fenetre);
  fenetres_[vue] = fenetre;
  suivi_.Suit(*fenetre);
  AppliqueTaille(vue, *fenetre);
  return fenetre;
}

void frmMain::AppliqueTaille(EntreeVue vue, QMdiSubWindow& fenetre) {
  const bool premiere =
      vue == EntreeVue::recettes && std::exchange(module_.premiereOuverture, false);
  const bool seule = enfants_->subWindowList().size() == 1;
  if ((premiere || seule) && module_.prefs[0].fenetreNormale == 0) {
    fenetre.showMaximized();
  } else {
    fenetre.show();
  }
}

void frmMain::FermeTout() {
  for (const LigneFenetre& ligne : fenetres) {
    if (QMdiSubWindow* fenetre = FenetreDe(ligne.vue)) {
      static_cast<FenetreEnfant*>(fenetre->widget())->Decharge();
      fenetres_.erase(ligne.vue);
    }
  }
}

void frmMain::ListeFenetres() {
  QMenu& menu = barres_.Menu("mnuWindow");
  for (QAction* action : menu.actions()) {
    if (action->property("fenetre").isValid()) {
      delete action;
    }
  }
  int numero = 0;
  for (QMdiSubWindow* fenetre : enfants_->subWindowList()) {
    if (!fenetre->isVisible()) {
      continue;
    }
    if (numero == 0) {
      menu.addSeparator()->setProperty("fenetre", true);
    }
    QAction* action =
        menu.addAction(QStringLiteral("&%1 %2").arg(++numero).arg(fenetre->windowTitle()));
    action->setProperty("fenetre", true);
    action->setCheckable(true);
    action->setChecked(fenetre == enfants_->activeSubWindow());
    connect(action, &QAction::triggered, fenetre, [this, fenetre] {
      if (fenetre->isMinimized()) {
        fenetre->showNormal();
      }
      enfants_->setActiveSubWindow(fenetre);
    });
  }
}

void frmMain::Bascule(const char* entree, QWidget& barre) {
  QAction& action = barres_.Entree(entree);
  action.setChecked(!action.isChecked());
  barre.setVisible(action.isChecked());
}

void frmMain::SuiteMaintenance() {
  if (property("Tag").toString() == QLatin1String("ok")) {
    MontreFenetre(EntreeVue::recettes);
    FenetreDe(EntreeVue::recettes)->showMaximized();
    setProperty("Tag", QString());
  }
}

QWidget* frmMain::ControleEnUsage() const {
  const FenetreEnfant* active = suivi_.active();
  return active == nullptr ? nullptr : active->focusWidget();
}

std::string frmMain::ImageAffichee() const {
  const FenetreEnfant* active = suivi_.active();
  const Vue vue = active == nullptr ? Vue{} : active->VueCourante();
  const auto* recette = std::get_if<VueRecette>(&vue);
  return recette == nullptr ? std::string{} : recette->image;
}

void frmMain::MontreImage() {
  module_.services.pointeur.Sablier();
  frmImage(module_, ImageAffichee(), this).exec();
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
  module_.contexteActif = 0;
  barres_.Entree(Ligne(vue).entree).setChecked(false);
  if (vue == EntreeVue::mesCourses) {
    barres_.Entree(Ligne(EntreeVue::mesNotes).entree).setChecked(false);
  }
  barres_.Applique(MotifDeSortie(vue));
}

void frmMain::Coche(EntreeVue vue) {
  barres_.Entree(Ligne(vue).entree).setChecked(true);
}

void frmMain::PermetImage(bool permise) {
  barres_.Permet(Colonne::image, permise);
}

bool frmMain::event(QEvent* evenement) {
  if (evenement->type() == QEvent::WindowActivate) {
    module_.services.pointeur.Normal();
    statut_->Rafraichit();
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
  FermeTout();
  aide_.Quitte();
  if (!isMinimized()) {
    EcritGeometrie({pos(), size()});
  }
  hide();
  SauveCourses(module_);
  if (module_.prefs[0].sansCopie == 0) {
    frmSauvegarde(module_).exec();
  }
  if (surFin) {
    surFin();
  }
}

}  // namespace gastrelle
