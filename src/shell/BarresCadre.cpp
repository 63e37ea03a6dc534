#include "shell/BarresCadre.h"

#include <array>
#include <stdexcept>

#include <QMenuBar>
#include <QToolButton>

#include "controles/Icones.h"
#include "shell/MenusCadre.h"

namespace gastrelle {
namespace {

constexpr int tailleIcones = 24;

/// What a column of the pattern switches: an entry or a submenu, and buttons.
struct Commutes {
  const char* entree;
  const char* bouton;
  const char* autreBouton;
};

constexpr std::array<Commutes, nombreColonnes> commutes{{
    {"mnuFilePrint", "Print", nullptr},
    {"mnuEditCut", "Couper", nullptr},
    {"mnuEditCopy", "Copier", nullptr},
    {"mnuEditPaste", "Coller", nullptr},
    {"mnuEditSelect", nullptr, nullptr},
    {"mnuEditRechercher", "Find", nullptr},
    {"mnuEditEnvoyer", nullptr, nullptr},
    {nullptr, "Ttx", "Notepad"},
    {"mnuViewImage", nullptr, nullptr},
}};

template <class T>
T& Trouve(const std::map<QString, T*>& table, const char* nom) {
  const auto trouve = table.find(QString::fromLatin1(nom));
  if (trouve == table.end()) {
    throw std::invalid_argument(std::string("ni entrée, ni menu, ni bouton : ") + nom);
  }
  return *trouve->second;
}

}  // namespace

BarresCadre::BarresCadre(QMainWindow& cadre) : barre_(new QToolBar(&cadre)) {
  BatitMenus(cadre);
  BatitBarre(cadre);
}

void BarresCadre::BatitMenus(QMainWindow& cadre) {
  QMenu* menu = nullptr;
  QMenu* sousMenu = nullptr;
  for (const EntreeMenu& ligne : EntreesMenus()) {
    const QString nom = QString::fromLatin1(ligne.nom);
    const QString titre = QString::fromUtf16(ligne.titre);
    if (ligne.genre == Genre::menu || ligne.genre == Genre::sousMenu) {
      QMenu*& nouveau = ligne.genre == Genre::menu ? menu : sousMenu;
      Q_ASSERT(ligne.genre == Genre::menu || menu != nullptr);  // the table opens with a menu
      nouveau = ligne.genre == Genre::menu ? cadre.menuBar()->addMenu(titre) : menu->addMenu(titre);
      nouveau->setObjectName(nom);
      menus_.emplace(nom, nouveau);
      continue;
    }
    if (ligne.genre == Genre::separateur) {
      Q_ASSERT(menu != nullptr);
      menu->addSeparator()->setObjectName(nom);
      continue;
    }
    auto* entree = new QAction(titre, &cadre);
    entree->setObjectName(nom);
    entree->setCheckable(ligne.cochable);
    entree->setAutoRepeat(false);  // a key held down is one command: one page printed
    if (*ligne.touche != '\0') {
      entree->setShortcuts(QKeySequence::listFromString(QString::fromUtf8(ligne.touche)));
    }
    entree->setIcon(IconeDe(QString::fromLatin1(ligne.icone)));
    QMenu* parent = ligne.genre == Genre::sousEntree ? sousMenu : menu;
    Q_ASSERT(parent != nullptr);
    parent->addAction(entree);
    entrees_.emplace(nom, entree);
    QObject::connect(entree, &QAction::triggered, &cadre, [this, entree](bool cochee) {
      // The check mark is the program's to set, not the click's.
      entree->setChecked(entree->isCheckable() && !cochee);
      Execute(*entree);
    });
  }
}

void BarresCadre::BatitBarre(QMainWindow& cadre) {
  barre_->setObjectName(QStringLiteral("tbToolBar"));
  barre_->setWindowTitle(QStringLiteral("Barre d'outils"));
  barre_->setMovable(false);
  barre_->setContextMenuPolicy(Qt::PreventContextMenu);
  barre_->setIconSize(QSize(tailleIcones, tailleIcones));
  cadre.addToolBar(barre_);
  for (const BoutonBarre& ligne : BarreOutils()) {
    if (ligne.debutGroupe) {
      barre_->addSeparator();
    }
    const QString cle = QString::fromLatin1(ligne.cle);
    const QString infobulle = QString::fromUtf16(ligne.infobulle);
    QAction* bouton = barre_->addAction(IconeDe(QString::fromLatin1(ligne.icone)), infobulle);
    bouton->setToolTip(infobulle);
    QWidget* controle = barre_->widgetForAction(bouton);
    controle->setObjectName(QStringLiteral("tbToolBar.") + cle);
    controle->setAccessibleName(infobulle);
    boutons_.emplace(cle, bouton);
    QAction& entree = Entree(ligne.entree);
    bouton->setCheckable(entree.isCheckable());
    QObject::connect(&entree, &QAction::toggled, bouton, &QAction::setChecked);
    QObject::connect(bouton, &QAction::triggered, &cadre, [this, bouton, &entree] {
      bouton->setChecked(entree.isChecked());  // the mark is the entry's, not the click's
      Execute(entree);
    });
  }
}

void BarresCadre::SurCommande(const char* entree, std::function<void()> commande) {
  commandes_[&Entree(entree)] = std::move(commande);
}

void BarresCadre::Execute(const QAction& entree) const {
  const auto commande = commandes_.find(&entree);
  if (commande != commandes_.end()) {
    commande->second();
  }
}

void BarresCadre::Applique(const Motif& motif) {
  for (std::size_t i = 0; i < motif.size(); ++i) {
    if (motif[i] != Etat::inchange) {
      Permet(static_cast<Colonne>(i), motif[i] == Etat::actif);
    }
  }
}

void BarresCadre::Permet(Colonne colonne, bool permise) {
  const Commutes& c = commutes[static_cast<std::size_t>(colonne)];
  if (c.entree != nullptr) {
    const auto menu = menus_.find(QString::fromLatin1(c.entree));
    if (menu != menus_.end()) {
      menu->second->setEnabled(permise);
    } else {
      Entree(c.entree).setEnabled(permise);
    }
  }
  for (const char* bouton : {c.bouton, c.autreBouton}) {
    if (bouton != nullptr) {
      Trouve(boutons_, bouton).setEnabled(permise);
    }
  }
}

QAction& BarresCadre::Entree(const char* nom) const {
  return Trouve(entrees_, nom);
}

QMenu& BarresCadre::Menu(const char* nom) const {
  return Trouve(menus_, nom);
}

}  // namespace gastrelle
