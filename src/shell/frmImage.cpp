#include "shell/frmImage.h"

#include <QFileInfo>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QtMath>

#include "controles/Conversion.h"
#include "controles/Icones.h"
#include "controles/Touches.h"
#include "data/Contextes.h"
#include "data/ProceduresFichiers.h"
#include "images/LecteurImage.h"
#include "shell/ImageAssociee.h"

namespace gastrelle {
namespace {

constexpr int tailleIcones = 24;

}  // namespace

frmImage::frmImage(Module1& module, std::string chemin, QWidget* parent)
    : QDialog(parent),
      module_(module),
      chemin_(std::move(chemin)),
      tbToolbar_(new QToolBar(this)),
      Picture1_(CreeVue("Picture1")),
      Image1_(CreeVue("Image1")),
      lblLegende_(new QLabel(this)) {
  setObjectName(QStringLiteral("frmImage"));
  setWindowTitle(VersQt(titreApplication) + QStringLiteral(" - Visualisateur d'images"));
  setProperty(proprieteSujet, QStringLiteral("visualisateur"));
  setModal(true);
  BatitBarre();
  lblLegende_->setObjectName(QStringLiteral("lblLegende"));
  lblLegende_->setTextFormat(Qt::PlainText);
  lblLegende_->setAlignment(Qt::AlignCenter);
  Image1_->setScaledContents(true);
  Image1_->hide();
  if (SurLaListe()) {
    Charge();
  }
}

bool frmImage::SurLaListe() const {
  return module_.contexteActif == Contexte(EntreeVue::recettes, ongletListe);
}

QLabel* frmImage::CreeVue(const char* nom) {
  auto* vue = new QLabel(this);
  vue->setObjectName(QLatin1String(nom));
  vue->setToolTip(QStringLiteral("Clic sur l'image pour fermer la fenêtre"));
  vue->setAccessibleName(QStringLiteral("Image de la recette"));
  vue->installEventFilter(this);
  return vue;
}

void frmImage::BatitBarre() {
  tbToolbar_->setObjectName(QStringLiteral("tbToolbar"));
  tbToolbar_->setIconSize(QSize(tailleIcones, tailleIcones));
  const auto bouton = [&](const char* cle, const char* icone, const QString& infobulle,
                          auto action) {
    QAction* entree = tbToolbar_->addAction(IconeDe(QLatin1String(icone)), infobulle);
    QWidget* controle = tbToolbar_->widgetForAction(entree);
    controle->setObjectName(QStringLiteral("tbToolbar.") + QLatin1String(cle));
    controle->setAccessibleName(infobulle);
    controle->setFocusPolicy(Qt::TabFocus);
    connect(entree, &QAction::triggered, this, action);
  };
  bouton("Copier", "ailleurs", QStringLiteral("Ouvrir dans le visualisateur associé"),
         [this] { OuvreImageAssociee(module_, chemin_); });
  bouton("Aide", "aide", QStringLiteral("Aide"), [] { EnvoieF1(); });
  bouton("Fermer", "quitter", QStringLiteral("Fermer la fenêtre"), [this] { close(); });
  tbToolbar_->setFixedHeight(tbToolbar_->sizeHint().height());
}

QSize frmImage::Verre() const {
  return (QSizeF(screen()->size()) * screen()->devicePixelRatio()).toSize();
}

int frmImage::HauteurBarre() const {
  return qRound(tbToolbar_->height() * screen()->devicePixelRatio());
}

bool frmImage::TropGrande(const QSize& image) const {
  return image.height() + 2 * HauteurBarre() > Verre().height() || image.width() > Verre().width();
}

void frmImage::Charge() {
  LecteurImage lecteur(QString::fromStdString(CheminSysteme(module_, chemin_)));
  const QSize etiree = Verre() - QSize(0, 3 * HauteurBarre());
  const QImage image =
      lecteur.Lit([&](const QSize& taille) { return TropGrande(taille) ? etiree : taille; });
  echec_ = image.isNull();
  if (echec_) {
    setAttribute(Qt::WA_DontShowOnScreen);  // its message alone is seen
    return;
  }
  const QSize naturelle = lecteur.taille();
  if (TropGrande(naturelle)) {
    Picture1_->hide();
    Montre(Image1_, image, etiree, naturelle);
  } else {
    Montre(Picture1_, image, naturelle, naturelle);
  }
}

void frmImage::Montre(QLabel* vue, const QImage& image, const QSize& taille,
                      const QSize& naturelle) {
  const qreal densite = screen()->devicePixelRatio();
  QPixmap points = QPixmap::fromImage(image);
  points.setDevicePixelRatio(densite);
  vue->setPixmap(points);
  vue->resize(qCeil(taille.width() / densite), qCeil(taille.height() / densite));
  vue->show();
  const QString legende = QStringLiteral("%1 (%2 × %3)")
                              .arg(QFileInfo(VersQt(chemin_)).fileName())
                              .arg(naturelle.width())
                              .arg(naturelle.height());
  lblLegende_->setText(fontMetrics().elidedText(legende, Qt::ElideMiddle, vue->width()));
  resize(vue->width(), vue->height() + 2 * tbToolbar_->height());
  move(screen()->geometry().topLeft());
}

void frmImage::resizeEvent(QResizeEvent* evenement) {
  QDialog::resizeEvent(evenement);
  const int h = tbToolbar_->height();
  tbToolbar_->setGeometry(0, 0, width(), h);
  for (QLabel* vue : {Picture1_, Image1_}) {
    vue->move((width() - vue->width()) / 2, h);
  }
  lblLegende_->setGeometry(0, height() - h, width(), h);
}

void frmImage::showEvent(QShowEvent* evenement) {
  QDialog::showEvent(evenement);
  QTimer::singleShot(0, this, &frmImage::SurActivation);
}

void frmImage::SurActivation() {
  module_.services.pointeur.Normal();
  if (!echec_ || !isVisible()) {
    return;
  }
  hide();
  if (SurLaListe()) {
    module_.services.messages.Informe("Fichier image" + std::string(CRLF) + chemin_ +
                                          std::string(CRLF) +
                                          std::string("non trouvé ou incompatible."_1252),
                                      Icone::critique);
  }
  reject();
}

bool frmImage::eventFilter(QObject* objet, QEvent* evenement) {
  if (evenement->type() == QEvent::MouseButtonRelease) {
    const Qt::MouseButton bouton = static_cast<QMouseEvent*>(evenement)->button();
    if (bouton == Qt::LeftButton || (bouton == Qt::RightButton && objet == Picture1_)) {
      close();
      return true;
    }
  }
  return QDialog::eventFilter(objet, evenement);
}

}  // namespace gastrelle
