#include "controles/FenetreOnglets.h"

#include <algorithm>

#include <QEvent>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "controles/Defilement.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

/// A page in a place of its own, where it scrolls.
QWidget* MetEnPlace(Onglet& page, QWidget* parent) {
  auto* place = new Defilement(&page, parent);
  place->surTaille = [&page](const QSize& taille) { page.TientDans(taille); };
  return place;
}

/// The place around a page, with the glass that it moves behind.
QWidget* PlaceDe(const Onglet& page) {
  return page.parentWidget()->parentWidget();
}

}  // namespace

FenetreOnglets::FenetreOnglets(Module1& module, Cadre& cadre, const DescriptionFenetre& description,
                               const JeuOnglets& jeu)
    : FenetreEnfant(module, cadre, description),
      jeu_(jeu),
      TabStrip1_(new QTabBar(this)),
      pile_(new QStackedWidget(this)),
      pages_(jeu.onglets.size()) {
  constexpr int marge = 4;
  TabStrip1_->setObjectName(QStringLiteral("TabStrip1"));
  TabStrip1_->setAccessibleName(QStringLiteral("Onglets"));
  TabStrip1_->setExpanding(false);
  TabStrip1_->setDocumentMode(true);
  for (auto* fleche : TabStrip1_->findChildren<QToolButton*>()) {
    fleche->setFocusPolicy(Qt::NoFocus);  // in a narrow window it scrolls the tabs, by the mouse
  }
  for (const DescriptionOnglet& onglet : jeu.onglets) {
    const int indice = TabStrip1_->addTab(QString::fromUtf16(onglet.titre));
    TabStrip1_->setTabToolTip(indice, QString::fromUtf16(onglet.infobulle));
  }
  auto* fond = new QVBoxLayout(this);
  fond->setContentsMargins(marge, marge, marge, 0);
  fond->setSpacing(0);
  fond->addWidget(TabStrip1_);
  fond->addWidget(pile_, 1);
  connect(TabStrip1_, &QTabBar::currentChanged, this,
          [this](int indice) { ClicOnglet(indice + 1); });
  PoseRaccourci(*this, {QKeySequence(Qt::CTRL | Qt::Key_PageDown)}, true,
                [this] { VaAuVoisin(1); });
  PoseRaccourci(*this, {QKeySequence(Qt::CTRL | Qt::Key_PageUp)}, true, [this] { VaAuVoisin(-1); });
}

Onglet& FenetreOnglets::Page(int onglet) {
  const auto rang = static_cast<std::size_t>(onglet) - 1;
  Onglet*& page = pages_[rang];
  if (page == nullptr) {
    const DescriptionOnglet& sienne = jeu_.onglets[rang];
    page = &sienne.cree({*this, onglet, sienne, description().logo, jeu_.ligneDuLogo});
    pile_->addWidget(MetEnPlace(*page, pile_));
  }
  return *page;
}

Vue FenetreOnglets::VueCourante() const {
  return pages_[static_cast<std::size_t>(ongletCourant_) - 1]->VueCourante();
}

void FenetreOnglets::ChoisitOnglet(int onglet) {
  TabStrip1_->setCurrentIndex(onglet - 1);
}

void FenetreOnglets::MontreOnglet(int onglet) {
  if (onglet == ongletCourant_) {
    return;
  }
  {
    const QSignalBlocker muette(TabStrip1_);
    ChoisitOnglet(onglet);
  }
  MontrePage(onglet);
}

void FenetreOnglets::ClicOnglet(int onglet) {
  if (onglet != ongletCourant_) {
    PermetOnglet(onglet) ? MontrePage(onglet) : ChoisitOnglet(ongletCourant_);
  }
}

void FenetreOnglets::MontrePage(int onglet) {
  pile_->setCurrentWidget(PlaceDe(Page(onglet)));
  ongletCourant_ = onglet;
  ColoreRefus();
  EtatOnglet();
}

bool FenetreOnglets::EstRefuse(int vers) const {
  return std::any_of(jeu_.refus.begin(), jeu_.refus.end(), [&](const ChangementRefuse& refus) {
    return refus.de == ongletCourant_ && refus.vers == vers;
  });
}

void FenetreOnglets::VaAuVoisin(int sens) {
  const int nombre = TabStrip1_->count();
  int vers = ongletCourant_;
  do {
    vers = (vers - 1 + sens + nombre) % nombre + 1;
  } while (EstRefuse(vers));
  ChoisitOnglet(vers);
}

void FenetreOnglets::ColoreRefus() {
  for (int indice = 0; indice < TabStrip1_->count(); ++indice) {
    TabStrip1_->setTabTextColor(
        indice, EstRefuse(indice + 1) ? palette().color(QPalette::Disabled, QPalette::WindowText)
                                      : QColor());
  }
}

void FenetreOnglets::changeEvent(QEvent* evenement) {
  FenetreEnfant::changeEvent(evenement);
  if (evenement->type() == QEvent::PaletteChange) {
    ColoreRefus();
  }
}

bool FenetreOnglets::PermetOnglet(int vers) {
  const bool refuse = EstRefuse(vers);
  if (refuse) {
    JoueExclamation(module());
  }
  return !refuse;
}

void FenetreOnglets::MontreDansListe(ComboListe& combo, std::int32_t numero) {
  const int indice = combo.IndiceDe(numero);
  ChoisitOnglet(ongletListe);
  combo.Choisit(indice);
}

void FenetreOnglets::EtatOnglet() {
  Onglet& page = Page(ongletCourant_);
  const std::string annonce = Annonce();
  for (Onglet* faite : pages_) {
    if (faite != nullptr) {
      faite->PoseAnnonce(annonce);
    }
  }
  setProperty(proprieteSujet, page.property(proprieteSujet));
  cadre().PoseContexte(Contexte(description().vue, ongletCourant_));
  page.Entre();
}

}  // namespace gastrelle
