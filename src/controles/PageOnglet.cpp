#include "controles/PageOnglet.h"

#include <QIcon>
#include <QTextDocument>

#include "controles/FenetreOnglets.h"
#include "controles/Touches.h"
#include "controles/ZoneTexte.h"

namespace gastrelle {
namespace {

constexpr int margePage = 12;
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

QLabel* Logo(const QIcon& image, const QString& infobulle, QWidget* parent) {
  auto* logo = new QLabel(parent);
  logo->setObjectName(QStringLiteral("Image1"));
  logo->setPixmap(image.pixmap(tailleLogo, tailleLogo));
  logo->setToolTip(infobulle);
  logo->setAccessibleName(infobulle);
  return logo;
}

ZoneTexte* Annonce(int numero, QWidget* parent) {
  auto* boite = new ZoneTexte(QStringLiteral("txtAnnonce(%1)").arg(numero - 1), sansLimite, parent);
  boite->RendLectureSeule();
  boite->setFrameShape(QFrame::NoFrame);
  boite->setFocusPolicy(Qt::NoFocus);
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

PageOnglet::PageOnglet(FenetreOnglets& hote)
    : QWidget(&hote),
      annonce_(Annonce(hote.ongletEnConstruction(), this)),
      options_(new QHBoxLayout),
      contenu_(new QGridLayout),
      boutons_(new QHBoxLayout) {
  const DescriptionOnglet& description = hote.descriptionEnConstruction();
  setObjectName(QStringLiteral("Frame1(%1)").arg(hote.ongletEnConstruction()));
  setProperty(proprieteSujet, QLatin1String(description.sujetAide));
  auto* bande = new QHBoxLayout;
  bande->addWidget(Logo(hote.logo(), QString::fromUtf16(description.infobulleLogo), this));
  bande->addSpacing(margePage);
  auto* titres = new QVBoxLayout;
  titres->addStretch(1);
  titres->addWidget(Entete(QString::fromUtf16(description.entete), this));
  if (hote.ligneDuLogo()) {
    auto* ligne = new QLabel(QString::fromUtf16(description.infobulleLogo), this);
    ligne->setObjectName(QStringLiteral("lblLigneLogo"));
    titres->addWidget(ligne);
  }
  titres->addStretch(1);
  bande->addLayout(titres, 1);
  bande->addWidget(annonce_);

  options_->setSpacing(2 * margePage);
  boutons_->addStretch(1);
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(margePage, margePage, margePage, margePage);
  page->addLayout(bande);
  page->addLayout(options_);
  page->addLayout(contenu_, 1);
  page->addLayout(boutons_);
}

QRadioButton* PageOnglet::Option(const QString& nom, const QString& titre) {
  auto* option = new QRadioButton(titre, this);
  option->setObjectName(nom);
  if (options_->isEmpty()) {
    options_->addStretch(1);
  }
  options_->insertWidget(options_->count() - 1, option);
  return option;
}

void PageOnglet::PoseAnnonce(std::string_view texte) {
  annonce_->PoseTexte(texte);
}

QLabel* PageOnglet::Legende(const QString& texte, QWidget* pour) {
  auto* legende = new QLabel(texte, this);
  legende->setBuddy(pour);
  QString nom = texte;
  pour->setAccessibleName(nom.remove(u'&'));
  return legende;
}

void PageOnglet::OrdonneClavier(std::initializer_list<QWidget*> controles) {
  QWidget* avant = nullptr;
  for (QWidget* controle : controles) {
    if (avant != nullptr) {
      setTabOrder(avant, controle);
    }
    avant = controle;
  }
}

int PageOnglet::Rang(const QString& legende, QWidget* controle) {
  constexpr int jusquAuBord = -1;
  const int rang = contenu_->count() == 0 ? 0 : contenu_->rowCount();
  // Beside a box of several lines the caption stands at its head.
  const bool haut = controle->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
  contenu_->addWidget(Legende(legende, controle), rang, 0, haut ? Qt::AlignTop : Qt::Alignment());
  contenu_->addWidget(controle, rang, 1, 1, jusquAuBord);
  contenu_->setColumnStretch(1, 1);
  return rang;
}

int PageOnglet::Etage(const QString& legende, QWidget* controle) {
  const int rang = contenu_->count() == 0 ? 0 : contenu_->rowCount();
  contenu_->addWidget(Legende(legende, controle), rang, 0);
  contenu_->addWidget(controle, rang + 1, 0);
  return rang + 1;
}

}  // namespace gastrelle
