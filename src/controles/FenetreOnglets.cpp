#include "controles/FenetreOnglets.h"

#include <algorithm>

#include <QCloseEvent>
#include <QVBoxLayout>

#include "controles/Conversion.h"
#include "controles/Icones.h"
#include "controles/Touches.h"
#include "controles/ZoneTexte.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

constexpr int lettres = 116;
constexpr int lignes = 35;
constexpr int moindresLignes = 27;

}  // namespace

FenetreOnglets::FenetreOnglets(Module1& module, Cadre& cadre, const DescriptionFenetre& description)
    : module_(module),
      cadre_(cadre),
      description_(description),
      TabStrip1_(new QTabBar(this)),
      cadres_(new QStackedWidget(this)),
      pages_(description.onglets.size()) {
  constexpr int marge = 6;
  setObjectName(QLatin1String(description.nom));
  setWindowTitle(QString::fromUtf16(description.titre));
  TabStrip1_->setObjectName(QStringLiteral("TabStrip1"));
  TabStrip1_->setAccessibleName(QStringLiteral("Onglets"));
  TabStrip1_->setExpanding(false);
  TabStrip1_->setDocumentMode(true);
  for (const DescriptionOnglet& onglet : description.onglets) {
    const int indice = TabStrip1_->addTab(QString::fromUtf16(onglet.titre));
    TabStrip1_->setTabToolTip(indice, QString::fromUtf16(onglet.infobulle));
  }
  auto* fond = new QVBoxLayout(this);
  fond->setContentsMargins(marge, marge, marge, marge);
  fond->setSpacing(0);
  fond->addWidget(TabStrip1_);
  fond->addWidget(cadres_, 1);
  connect(TabStrip1_, &QTabBar::currentChanged, this,
          [this](int indice) { ClicOnglet(indice + 1); });
}

PageOnglet& FenetreOnglets::Page(int onglet) {
  PageOnglet*& page = pages_[static_cast<std::size_t>(onglet) - 1];
  if (page == nullptr) {
    ongletEnConstruction_ = onglet;
    page = &descriptionEnConstruction().cree(*this);
    cadres_->addWidget(page);
  }
  return *page;
}

const DescriptionOnglet& FenetreOnglets::descriptionEnConstruction() const {
  return description_.onglets[static_cast<std::size_t>(ongletEnConstruction_) - 1];
}

Vue FenetreOnglets::VueCourante() const {
  return pages_[static_cast<std::size_t>(ongletCourant_) - 1]->VueCourante();
}

QIcon FenetreOnglets::logo() const {
  return IconeDe(QLatin1String(description_.logo));
}

void FenetreOnglets::Active() {
  if (module_.erreurFatale) {
    ErreurFatale(module_);
  }
  if (Reduite()) {
    return;
  }
  cadre_.Coche(description_.vue);
  EtatOnglet();
  module_.services.pointeur.Normal();
}

void FenetreOnglets::Desactive() {
  if (!Reduite()) {
    RazCadre();
  }
}

void FenetreOnglets::Reduit() {
  if (description_.razReduite) {
    RazCadre();
  }
}

void FenetreOnglets::closeEvent(QCloseEvent* evenement) {
  RazCadre();
  evenement->accept();
}

QSize FenetreOnglets::sizeHint() const {
  return FenetreEnfant::sizeHint().expandedTo(Place(lettres, lignes));
}

QSize FenetreOnglets::minimumSizeHint() const {
  return FenetreEnfant::minimumSizeHint().expandedTo(Place(lettres, moindresLignes));
}

QSize FenetreOnglets::Place(int lettresDeLarge, int lignesDeHaut) const {
  const QFontMetrics metrique = fontMetrics();
  return {lettresDeLarge * metrique.averageCharWidth(), lignesDeHaut * metrique.lineSpacing()};
}

void FenetreOnglets::RazCadre() {
  cadre_.QuitteContexte(description_.vue);
}

void FenetreOnglets::ChoisitOnglet(int onglet) {
  TabStrip1_->setCurrentIndex(onglet - 1);
}

void FenetreOnglets::ClicOnglet(int onglet) {
  if (onglet == ongletCourant_) {
    return;
  }
  const bool refuse = std::any_of(description_.refus.begin(), description_.refus.end(),
                                  [&](const ChangementRefuse& refus) {
                                    return refus.de == ongletCourant_ && refus.vers == onglet;
                                  });
  if (refuse) {
    module_.services.son.Joue(CheminSysteme(module_, module_.chemins.De("Exclamation")));
    ChoisitOnglet(ongletCourant_);
    return;
  }
  cadres_->setCurrentWidget(&Page(onglet));
  ongletCourant_ = onglet;
  EtatOnglet();
}

void FenetreOnglets::Refuse(std::string_view texte, QWidget* focus) {
  module_.services.pointeur.Normal();
  module_.services.messages.Informe(texte, Icone::information);
  if (focus != nullptr) {
    DonneFocus(focus);
  }
}

void FenetreOnglets::RefuseAvecBip(std::string_view texte, QWidget* focus) {
  module_.services.pointeur.Normal();
  module_.services.messages.Bip();
  Refuse(texte, focus);
}

bool FenetreOnglets::ConfirmeEffacement(std::initializer_list<const QWidget*> boites) {
  const bool saisie = std::any_of(boites.begin(), boites.end(),
                                  [](const QWidget* boite) { return !EstVide(*boite); });
  return !saisie || module_.services.messages.Demande("Effacer la saisie : êtes-sur sûr ?"_1252) ==
                        Reponse::oui;
}

void FenetreOnglets::EtatOnglet() {
  PageOnglet& page = Page(ongletCourant_);
  const std::string annonce = Annonce();
  for (PageOnglet* faite : pages_) {
    if (faite != nullptr) {
      faite->PoseAnnonce(annonce);
    }
  }
  setProperty(proprieteSujet, page.property(proprieteSujet));
  cadre_.PoseContexte(static_cast<std::int16_t>(description_.contexteBase + ongletCourant_));
  page.Entre();
}

}  // namespace gastrelle
