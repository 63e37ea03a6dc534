#include "controles/BandeauLogo.h"

#include <QHBoxLayout>

#include "controles/Etiquette.h"
#include "controles/Icones.h"

namespace gastrelle {
namespace {

constexpr int ecart = 12;
constexpr int tailleLogo = 48;
constexpr int lignesDAisance = 4;  ///< that the band leaves to the texts of the page
constexpr double agrandissement = 1.5;

QLabel* Entete(const QString& texte, QWidget* parent) {
  auto* etiquette = new Etiquette(texte, parent);
  QFont police = etiquette->font();
  police.setPointSizeF(police.pointSizeF() * agrandissement);
  etiquette->setFont(police);
  etiquette->setObjectName(QStringLiteral("Label1"));
  return etiquette;
}

QLabel* Logo(const char* nom, const QString& infobulle, const QString& entete, QWidget* parent) {
  auto* logo = new QLabel(parent);
  logo->setObjectName(QStringLiteral("Image1"));
  logo->setPixmap(IconeDe(QLatin1String(nom)).pixmap(tailleLogo, tailleLogo));
  logo->setToolTip(infobulle);
  logo->setAccessibleName(infobulle.isEmpty() ? entete : infobulle);
  return logo;
}

}  // namespace

BandeauLogo::BandeauLogo(const char* logo, const QString& entete, const QString& infobulle,
                         QWidget* parent)
    : QWidget(parent), titres_(new QVBoxLayout), entete_(Entete(entete, this)) {
  auto* bande = new QHBoxLayout(this);
  bande->setContentsMargins(0, 0, 0, 0);
  bande->addWidget(Logo(logo, infobulle, entete, this));
  bande->addSpacing(ecart);
  bande->addLayout(titres_, 1);
  titres_->addStretch(1);
  titres_->addWidget(entete_);
  titres_->addStretch(1);
}

void BandeauLogo::AjouteLigne(const QString& texte) {
  auto* ligne = new Etiquette(texte, this);
  ligne->setObjectName(QStringLiteral("lblLigneLogo"));
  titres_->insertWidget(titres_->count() - 1, ligne);
}

void BandeauLogo::AjouteAnnonce(const QString& nom) {
  annonce_ = new BoiteAnnonce(nom, this);
  layout()->addWidget(annonce_);
}

void BandeauLogo::TientDans(const QSize& place) {
  QLayout* page = parentWidget()->layout();
  const QMargins marges = page->contentsMargins();
  const int largeur = minimumSizeHint().width() + marges.left() + marges.right();
  const int sienne = sizeHint().height() + page->spacing();
  const int reste = page->totalMinimumSize().height() - (isHidden() ? 0 : sienne);
  const int hauteur = sienne + reste + lignesDAisance * fontMetrics().lineSpacing();
  setVisible(place.width() >= largeur && place.height() >= hauteur);
}

}  // namespace gastrelle
