#include "shell/FenetresCadre.h"

#include <array>
#include <utility>

#include <QMdiSubWindow>

#include "controles/Icones.h"
#include "favoris/frmFavoris.h"
#include "fiches/frmMenus.h"
#include "fiches/frmTrucs.h"
#include "fromages/frmFromages.h"
#include "listes/frmCourses.h"
#include "listes/frmMesNotes.h"
#include "recettes/frmRecettes.h"
#include "shell/ContourFenetre.h"
#include "shell/MenusCadre.h"
#include "vins/frmMillesime.h"
#include "vins/frmVins.h"

namespace gastrelle {
namespace {

/// A window, its entry in the view menu, and what makes it.
struct LigneFenetre {
  EntreeVue vue;
  const char* entree;
  FenetreEnfant* (*cree)(Module1&, Cadre&);
};

template <class Fenetre>
FenetreEnfant* CreeFenetre(Module1& module, Cadre& cadre) {
  return new Fenetre(module, cadre);
}

constexpr std::array<LigneFenetre, nombreVues> lignes{{
    {EntreeVue::recettes, "mnuViewRecettes", CreeFenetre<frmRecettes>},
    {EntreeVue::fromages, "mnuViewFromages", CreeFenetre<frmFromages>},
    {EntreeVue::menus, "mnuViewMenus", CreeFenetre<frmMenus>},
    {EntreeVue::vins, "mnuViewVins", CreeFenetre<frmVins>},
    {EntreeVue::millesimes, "mnuViewMillesimes", CreeFenetre<frmMillesime>},
    {EntreeVue::termesTrucsAstuces, "mnuViewTermesTrucsAstuces", CreeFenetre<frmTrucs>},
    {EntreeVue::favoris, "mnuViewFavoris", CreeFenetre<frmFavoris>},
    {EntreeVue::mesNotes, "mnuViewMesNotes", CreeFenetre<frmMesNotes>},
    {EntreeVue::mesCourses, "mnuViewMesCourses", CreeFenetre<frmCourses>},
}};

constexpr const LigneFenetre& Ligne(EntreeVue vue) {
  return lignes[static_cast<std::size_t>(vue)];
}

constexpr const char* marqueListe = "fenetre";  // property of the entries that list a window

}  // namespace

const char* NomEntree(EntreeVue vue) {
  return Ligne(vue).entree;
}

FenetresCadre::FenetresCadre(Module1& module, Cadre& cadre, QMdiArea& place)
    : module_(module), cadre_(cadre), place_(place), suivi_(place) {}

void FenetresCadre::Montre(EntreeVue vue) {
  if (EstContexteDe(module_.contexteActif, vue)) {
    return;
  }
  module_.services.pointeur.Sablier();
  QMdiSubWindow* fenetre = TrouveOuverte(vue);
  if (fenetre == nullptr) {
    fenetre = &Cree(vue);
  } else if (fenetre->isMinimized()) {
    module_.services.pointeur.Normal();
  }
  if (!fenetre->isVisible()) {
    fenetre->show();
  }
  VaA(*fenetre);
  fenetre->raise();
}

void FenetresCadre::MontreMaximisee(EntreeVue vue) {
  Montre(vue);
  TrouveOuverte(vue)->showMaximized();
}

void FenetresCadre::VaA(QMdiSubWindow& fenetre) {
  if (fenetre.isMinimized()) {
    fenetre.showNormal();
  }
  place_.setActiveSubWindow(&fenetre);
}

QMdiSubWindow* FenetresCadre::TrouveOuverte(EntreeVue vue) const {
  const auto trouvee = ouvertes_.find(vue);
  auto* fenetre =
      trouvee == ouvertes_.end() ? nullptr : qobject_cast<QMdiSubWindow*>(trouvee->second);
  // A closed one is still there for a moment, but no child window any more.
  return place_.subWindowList().contains(fenetre) ? fenetre : nullptr;
}

QMdiSubWindow& FenetresCadre::Cree(EntreeVue vue) {
  auto* fenetre = new ContourFenetre;
  fenetre->setAttribute(Qt::WA_DeleteOnClose);
  fenetre->setWidget(Ligne(vue).cree(module_, cadre_));
  fenetre->setWindowIcon(
      IconeDe(QLatin1String(ImageDuBouton(NomEntree(vue))), plusGrandeIconeFenetre));
  place_.addSubWindow(fenetre);
  ouvertes_[vue] = fenetre;
  suivi_.Suit(*fenetre);
  fenetre->surFermeture = [this] { suivi_.Regarde(); };
  AppliqueTaille(vue, *fenetre);
  return *fenetre;
}

FenetreEnfant* FenetresCadre::EnContexte() const {
  FenetreEnfant* trouvee = nullptr;
  PourChacune([&](EntreeVue vue, FenetreEnfant& fenetre) {
    trouvee = EstContexteDe(module_.contexteActif, vue) ? &fenetre : trouvee;
  });
  return trouvee;
}

void FenetresCadre::AppliqueTaille(EntreeVue vue, QMdiSubWindow& fenetre) {
  const bool premiere =
      vue == EntreeVue::recettes && std::exchange(module_.premiereOuverture, false);
  const bool seule = place_.subWindowList().size() == 1;
  if ((premiere || seule) && module_.prefs[0].fenetreNormale == 0) {
    fenetre.showMaximized();
  } else {
    fenetre.show();
  }
}

void FenetresCadre::PourChacune(const std::function<void(EntreeVue, FenetreEnfant&)>& fait) const {
  for (const LigneFenetre& ligne : lignes) {
    if (QMdiSubWindow* fenetre = TrouveOuverte(ligne.vue)) {
      fait(ligne.vue, *static_cast<FenetreEnfant*>(fenetre->widget()));
    }
  }
}

void FenetresCadre::Deplie(EntreeVue vue) {
  if (QMdiSubWindow* fenetre = TrouveOuverte(vue)) {
    VaA(*fenetre);
  }
}

void FenetresCadre::Decharge(EntreeVue derniere) {
  PourChacune([&](EntreeVue vue, FenetreEnfant& fenetre) {
    if (vue <= derniere) {
      fenetre.Decharge();
      ouvertes_.erase(vue);
    }
  });
}

void FenetresCadre::EnregistreTout() {
  PourChacune([](EntreeVue /*vue*/, FenetreEnfant& fenetre) { fenetre.EnregistreSaisie(); });
}

void FenetresCadre::Enumere(QMenu& menu) {
  for (QAction* action : menu.actions()) {
    if (action->property(marqueListe).isValid()) {
      delete action;
    }
  }
  int numero = 0;
  for (QMdiSubWindow* fenetre : place_.subWindowList()) {
    if (!fenetre->isVisible()) {
      continue;
    }
    if (numero == 0) {
      menu.addSeparator()->setProperty(marqueListe, true);
    }
    QAction* action =
        menu.addAction(QStringLiteral("&%1 %2").arg(++numero).arg(fenetre->windowTitle()));
    action->setProperty(marqueListe, true);
    action->setIcon(fenetre->windowIcon());
    action->setCheckable(true);
    action->setChecked(fenetre == place_.activeSubWindow());
    QObject::connect(action, &QAction::triggered, fenetre, [this, fenetre] { VaA(*fenetre); });
  }
}

}  // namespace gastrelle
