#include "promenade/Parcours.h"

#include <array>

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QStringList>
#include <QTabBar>

#include "promenade/Gestes.h"

namespace gastrelle::essai {
namespace {

/// A window: its name, its caption, the entry and the button that open it, its tabs.
struct LigneVisite {
  const char* nom;
  const char16_t* titre;
  const char* entree;
  const char* bouton;   ///< empty: by the menu
  const char* onglets;  ///< their captions, joined by "|"
};

constexpr std::array<LigneVisite, 9> visites{{
    {"frmFromages", u"Les fromages", "mnuViewFromages", "tbToolBar.Fromage",
     "Liste|Ajouter|Modifier|Supprimer|Trier"},
    {"frmMenus", u"Les menus", "mnuViewMenus", "", "Liste|Ajouter|Modifier|Supprimer"},
    {"frmVins", u"Les vins", "mnuViewVins", "tbToolBar.Vin",
     "Liste|Ajouter|Modifier|Supprimer|Trier|Mes vins|Ma cave"},
    {"frmMillesime", u"Les millésimes des vins", "mnuViewMillesimes", "", "Liste|Ajouter|Modifier"},
    {"frmTrucs", u"Les termes, trucs et astuces", "mnuViewTermesTrucsAstuces", "",
     "Liste|Ajouter|Modifier|Supprimer"},
    {"frmFavoris", u"Mes favoris", "mnuViewFavoris", "", "Liste|Ajouter|Modifier|Supprimer|Trier"},
    {"frmMesNotes", u"Mes notes", "mnuViewMesNotes", "", ""},
    {"frmCourses", u"Mes courses", "mnuViewMesCourses", "", ""},
    {"frmRecettes", u"Les recettes", "mnuViewRecettes", "tbToolBar.Recette",
     "Liste|Ajouter|Modifier|Supprimer|Alpha"},
}};

QStringList Onglets(const LigneVisite& visite) {
  return QString::fromLatin1(visite.onglets).split(u'|', Qt::SkipEmptyParts);
}

QStringList TitresDe(const QTabBar& bande) {
  QStringList titres;
  for (int i = 0; i < bande.count(); ++i) {
    titres << bande.tabText(i);
  }
  return titres;
}

/// Its caption is right, it is the one in use, its tabs are those of the table.
bool EstOuverte(const LigneVisite& visite) {
  const QWidget* fenetre = EnfantVu(QLatin1String(visite.nom));
  const auto* entree = LeCadre().findChild<QAction*>(QLatin1String(visite.entree));
  if (fenetre == nullptr || entree == nullptr || !entree->isChecked()) {
    return false;
  }
  const auto* bande = Cherche<QTabBar>(fenetre, QStringLiteral("TabStrip1"));
  return fenetre->windowTitle() == QString::fromUtf16(visite.titre) &&
         (bande == nullptr ? QStringList() : TitresDe(*bande)) == Onglets(visite);
}

void Ouvre(Trajet& trajet, const LigneVisite& visite) {
  const QString bouton = QLatin1String(visite.bouton);
  if (bouton.isEmpty()) {
    trajet.Commande(QStringLiteral("mnuView"), {}, QLatin1String(visite.entree));
  } else {
    trajet.Fait(QStringLiteral("presse ") + bouton, {},
                [=] { Clique(Trouve(&LeCadre(), bouton)); });
  }
  trajet.Attend(QLatin1String(visite.nom) + QStringLiteral(" à l'écran"),
                [&visite] { return EstOuverte(visite); });
}

void Visite(Trajet& trajet, const LigneVisite& visite) {
  const QString nom = QLatin1String(visite.nom);
  Ouvre(trajet, visite);
  trajet.Photographie(nom);
  // From the first tab every other one can be reached.
  for (int onglet = 2; onglet <= Onglets(visite).size(); ++onglet) {
    trajet.VaALOnglet(nom, onglet);
    trajet.Photographie(QStringLiteral("%1-%2").arg(nom).arg(onglet));
    trajet.VaALOnglet(nom, 1);
  }
}

}  // namespace

Trajet ToutLeTrajet() {
  Trajet trajet;
  Commence(trajet);
  OuvreTout(trajet);
  TientLesRecettes(trajet);
  TientLaMaison(trajet);
  Consulte(trajet);
  Termine(trajet);
  return trajet;
}

void Commence(Trajet& trajet) {
  trajet.Attend(QStringLiteral("le cadre et les recettes à l'écran"), [] {
    const QWidget* cadre = FenetreVue(QStringLiteral("frmMain"));
    return cadre != nullptr && cadre->windowTitle() == QStringLiteral("Gastrelle 2005") &&
           EstOuverte(visites.back());
  });
  trajet.Attend(QStringLiteral("tous les fichiers sont là"), [] {
    constexpr int nombre = 20;
    const QDir dossier(QCoreApplication::applicationDirPath());
    return dossier.entryList({QStringLiteral("GL*.DAT")}).size() == nombre &&
           dossier.exists(QStringLiteral("IMAGE"));
  });
}

void OuvreTout(Trajet& trajet) {
  for (const LigneVisite& visite : visites) {
    Visite(trajet, visite);
  }
}

void Termine(Trajet& trajet) {
  trajet.Commande(QStringLiteral("mnuFile"), {}, QStringLiteral("mnuFileExit"));
  trajet.DansUnDialogue([&] {
    trajet.Attend(QStringLiteral("la sauvegarde est faite"), [] {
      const auto* tache =
          Cherche<QLabel>(FenetreVue(QStringLiteral("frmSauvegarde")), QStringLiteral("lblTache"));
      return tache != nullptr && tache->text() == QStringLiteral("effectuée avec succès");
    });
    trajet.Photographie(QStringLiteral("sauvegarde"));
    trajet.Clique({}, QStringLiteral("cmdOk"));
  });
}

}  // namespace gastrelle::essai
