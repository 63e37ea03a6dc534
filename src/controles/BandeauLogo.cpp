#include "controles/BandeauLogo.h"

#include <QHBoxLayout>

#include "controles/Icones.h"

namespace gastrelle {
namespace {

constexpr int ecart = 12;
constexpr int tailleLogo = 48;
constexpr int largeurAnnonce = 120;
constexpr int lignesAnnonce = 3;
constexpr double agrandissement = 1.5;

QLabel* Entete(const QString& texte, QWidget* parent) {
  auto* etiquette = new QLabel(texte, parent);
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

ZoneTexte* Annonce(const QString& nom, QWidget* parent) {
  auto* boite = new ZoneTexte(nom, sansLimite, parent);
  boite->RendLectureSeule();
  boite->setFrameShape(QFrame::NoFrame);
  boite->setFocusPolicy(Qt::NoFocus);
  boite->viewport()->setBackgroundRole(QPalette::Window);
  boite->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  boite->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  boite->setLineWrapMode(QPlainTextEdit::NoWrap);
  QTextOption option = boite->document()->defaultTextOption();
  option.setAlignment(Qt::AlignRight);
  boite->document()->setDefaultTextOption(option);
  const int marges = static_cast<int>(2 * boite->document()->documentMargin());
  boite->setFixedSize(largeurAnnonce, lignesAnnonce * boite->fontMetrics().lineSpacing() + marges);
  boite->setAccessibleName(QStringLiteral("Nombre de fiches"));
  return boite;
}

}  // namespace

BandeauLogo::BandeauLogo(const char* logo, const QString& entete, const QString& infobulle,
                         QWidget* parent)
    : QWidget(parent), titres_(new QVBoxLayout) {
  auto* bande = new QHBoxLayout(this);
  bande->setContentsMargins(0, 0, 0, 0);
  bande->addWidget(Logo(logo, infobulle, entete, this));
  bande->addSpacing(ecart);
  bande->addLayout(titres_, 1);
  titres_->addStretch(1);
  titres_->addWidget(Entete(entete, this));
  titres_->addStretch(1);
}

void BandeauLogo::AjouteLigne(const QString& texte) {
  auto* ligne = new QLabel(texte, this);
  ligne->setObjectName(QStringLiteral("lblLigneLogo"));
  titres_->insertWidget(titres_->count() - 1, ligne);
}

void BandeauLogo::AjouteAnnonce(const QString& nom) {
  annonce_ = Annonce(nom, this);
  layout()->addWidget(annonce_);
}

}  // namespace gastrelle
