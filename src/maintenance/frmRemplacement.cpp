#include "maintenance/frmRemplacement.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "controles/Boutons.h"
#include "controles/Conversion.h"
#include "controles/Focus.h"
#include "controles/Repeint.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

constexpr int marge = 20;
constexpr int largeur = 580;          // of the dialog at first: most of its caption is seen
constexpr QSize moindreTexte{42, 5};  // of the texts: letters of mean width, lines

QLabel* Texte(const QString& nom, const QString& texte, QWidget* cadre) {
  auto* label = new QLabel(texte, cadre);
  label->setObjectName(nom);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  const QFontMetrics lettres = label->fontMetrics();
  label->setMinimumSize(moindreTexte.width() * lettres.averageCharWidth(),
                        moindreTexte.height() * lettres.lineSpacing());
  return label;
}

/// What a frame of the dialog holds: its texts, of which one shows, over its buttons.
void Dispose(QWidget* cadre, const std::array<QLabel*, 2>& textes,
             std::initializer_list<QPushButton*> boutons) {
  auto* rangee = new QHBoxLayout;
  rangee->addStretch(1);
  for (QPushButton* bouton : boutons) {
    rangee->addWidget(bouton);
  }
  auto* page = new QVBoxLayout(cadre);
  page->setContentsMargins({});
  for (QLabel* texte : textes) {
    page->addWidget(texte, 1);
  }
  page->addLayout(rangee);
}

}  // namespace

frmRemplacement::frmRemplacement(Module1& module, Cadre& cadre,
                                 const DescriptionRemplacement& description, QWidget* parent)
    : QDialog(parent),
      module_(module),
      cadre_(cadre),
      description_(description),
      image_(new QLabel(this)),
      cmdOui_(Bouton(QStringLiteral("cmdOui"), QStringLiteral("&Oui"), {}, {}, this)),
      cmdNon_(Bouton(QStringLiteral("cmdNon"), QStringLiteral("&Non"), {}, {}, this)),
      cmdAide_(BoutonAide(QStringLiteral("cmdAide"), this)),
      cmdFin_(Bouton(QStringLiteral("cmdFin"), QStringLiteral("&Terminé"), {}, {}, this)),
      FrameAccord_(ComposeAccord()),
      FrameEfface_(ComposeEfface()) {
  setObjectName(QLatin1String(description.nom));
  setWindowTitle(VersQt(titreApplication) + QString::fromUtf16(description.titre));
  setProperty(proprieteSujet, QLatin1String(description.sujetAide));
  PoseImage(QStyle::SP_MessageBoxWarning);
  auto* page = new QHBoxLayout(this);
  page->setContentsMargins(marge, marge, marge, marge);
  page->setSpacing(marge);
  page->addWidget(image_, 0, Qt::AlignTop);
  page->addWidget(FrameAccord_, 1);
  page->addWidget(FrameEfface_, 1);
  FrameEfface_->hide();
  if (description.refus != nullptr && module.bufRecette.nbActifs() == 1) {
    Refuse();
  } else {
    JoueExclamation(module);
  }
  cmdNon_->setFocus();
  resize(sizeHint().expandedTo({largeur, 0}).boundedTo(screen()->availableSize()));
}

QWidget* frmRemplacement::ComposeAccord() {
  auto* cadre = new QWidget(this);
  cadre->setObjectName(QStringLiteral("FrameAccord"));
  for (std::size_t i = 0; i < Label1_.size(); ++i) {
    Label1_.at(i) = Texte(QStringLiteral("Label1(%1)").arg(i),
                          QString::fromUtf16(description_.demandes.at(i)), cadre);
  }
  Label1_[1]->hide();
  connect(cmdOui_, &QPushButton::clicked, this, [this] { Accepte(); });
  connect(cmdNon_, &QPushButton::clicked, this, &frmRemplacement::reject);
  Dispose(cadre, Label1_, {cmdOui_, cmdNon_, cmdAide_});
  return cadre;
}

QWidget* frmRemplacement::ComposeEfface() {
  auto* cadre = new QWidget(this);
  cadre->setObjectName(QStringLiteral("FrameEfface"));
  Label2_[0] =
      Texte(QStringLiteral("Label2(0)"), QStringLiteral("\nEffacement en cours..."), cadre);
  Label2_[1] = Texte(QStringLiteral("Label2(1)"), {}, cadre);
  Label2_[1]->hide();
  connect(cmdFin_, &QPushButton::clicked, this, &frmRemplacement::reject);
  Dispose(cadre, Label2_, {cmdFin_});
  return cadre;
}

void frmRemplacement::PoseImage(QStyle::StandardPixmap image) {
  const int cote = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
  image_->setPixmap(style()->standardIcon(image).pixmap(cote));
}

void frmRemplacement::Refuse() {
  PoseImage(QStyle::SP_MessageBoxInformation);
  Label1_[0]->setText(u'\n' + QString::fromUtf16(description_.refus));
  cmdNon_->setText(QStringLiteral("&Fermer"));
  cmdAide_->hide();
  cmdOui_->hide();
}

void frmRemplacement::Accepte() {
  // The second half of a double click, or a key held down, confirms nothing.
  const bool trop = depuis_.isValid() && !depuis_.hasExpired(QApplication::doubleClickInterval());
  depuis_.start();
  if (Label1_[0]->isVisibleTo(this)) {
    Demande();
  } else if (!trop) {
    Remplace();
  }
}

void frmRemplacement::Demande() {
  Label1_[0]->hide();
  Label1_[1]->show();
  DonneFocus(cmdNon_);
  JoueExclamation(module_);
}

void frmRemplacement::Remplace() {
  FrameAccord_->hide();
  FrameEfface_->show();
  cmdFin_->setEnabled(false);
  module_.services.pointeur.Sablier();
  repaint();
  if (!ExisteOrigines(module_)) {
    Conclut(QStringLiteral("Un ou plusieurs fichiers d'origine sont manquants (.STP). "
                           "Impossibilité de continuer."),
            QStringLiteral("&Fermer"));
    return;
  }
  cadre_.Decharge(EntreeVue::mesCourses);
  module_.services.pointeur.Sablier();  // a window that comes to the front takes it off
  RemplaceRecettes(module_, description_.fabrique);
  PoseImage(QStyle::SP_MessageBoxInformation);
  Conclut(QString::fromUtf16(description_.fin), QStringLiteral("&Terminé"));
}

void frmRemplacement::Conclut(const QString& resultat, const QString& bouton) {
  EcouleSaisies();
  module_.services.pointeur.Normal();
  Label2_[0]->hide();
  Label2_[1]->setText(resultat);
  Label2_[1]->show();
  cmdFin_->setText(bouton);
  cmdFin_->setEnabled(true);
  DonneFocus(cmdFin_);
}

void frmRemplacement::reject() {
  const bool commencee = FrameEfface_->isVisibleTo(this);
  if (commencee && !cmdFin_->isEnabled()) {
    return;
  }
  if (commencee) {
    cadre_.AnnonceRecettesChangees();
  }
  QDialog::reject();
}

}  // namespace gastrelle
