#include "controles/FenetreOnglets.h"

#include <algorithm>

#include <QCloseEvent>
#include <QVBoxLayout>

#include "controles/Conversion.h"
#include "controles/Icones.h"
#include "controles/ZoneTexte.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {

FenetreOnglets::FenetreOnglets(Module1& module, Cadre& cadre, const DescriptionFenetre& description)
    : module_(module),
      cadre_(cadre),
      description_(description),
      TabStrip1_(new QTabBar(this)),
      cadres_(new QStackedWidget(this)) {
  constexpr int marge = 6;
  setObjectName(QLatin1String(description.nom));
  setWindowTitle(QString::fromUtf16(description.titre));
  TabStrip1_->setObjectName(QStringLiteral("TabStrip1"));
  TabStrip1_->setAccessibleName(QStringLiteral("Onglets"));
  TabStrip1_->setExpanding(false);
  TabStrip1_->setDocumentMode(true);
  auto* fond = new QVBoxLayout(this);
  fond->setContentsMargins(marge, marge, marge, marge);
  fond->setSpacing(0);
  fond->addWidget(TabStrip1_);
  fond->addWidget(cadres_, 1);
  connect(TabStrip1_, &QTabBar::currentChanged, this,
          [this](int indice) { ClicOnglet(indice + 1); });
}

const DescriptionOnglet& FenetreOnglets::AjoutePage(PageOnglet& page) {
  const DescriptionOnglet& onglet = description_.onglets[pages_.size()];
  page.setObjectName(QStringLiteral("Frame1(%1)").arg(ProchainePage()));
  pages_.push_back(&page);
  cadres_->addWidget(&page);
  const QSignalBlocker silence(TabStrip1_);
  const int indice = TabStrip1_->addTab(QString::fromUtf16(onglet.titre));
  TabStrip1_->setTabToolTip(indice, QString::fromUtf16(onglet.infobulle));
  return onglet;
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
    module_.services.son.Joue(VersUtf8(module_.chemins.De("Exclamation")));
    ChoisitOnglet(ongletCourant_);
    return;
  }
  cadres_->setCurrentIndex(onglet - 1);
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
  const std::string annonce = Annonce();
  for (PageOnglet* page : pages_) {
    page->PoseAnnonce(annonce);
  }
  cadre_.PoseContexte(static_cast<std::int16_t>(description_.contexteBase + ongletCourant_));
  pages_[static_cast<std::size_t>(ongletCourant_) - 1]->Entre();
}

}  // namespace gastrelle
