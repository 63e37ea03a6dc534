#include "shell/frmAide.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QTextCursor>
#include <QVBoxLayout>

#include "controles/Icones.h"
#include "controles/Touches.h"
#include "shell/PlaceAide.h"

namespace gastrelle {
namespace {

constexpr int marge = 6;
constexpr int retrait = 14;
/// The contents take one part of the window's width, the page two.
constexpr int partsLargeur = 3;
constexpr int roleSujet = Qt::UserRole;

}  // namespace

frmAide::frmAide(const FichierAide& fichier)
    : fichier_(fichier),
      barre_(new QToolBar(this)),
      txtRecherche_(new QLineEdit(this)),
      volet_(new QStackedWidget(this)),
      treeSommaire_(new QTreeWidget(this)),
      lstResultats_(new QListWidget(this)),
      partage_(new QSplitter(this)),
      txtPage_(new LecteurAide(this)) {
  setObjectName(QStringLiteral("frmAide"));
  setWindowTitle(QStringLiteral("Aide de Gastrelle"));
  setWindowIcon(IconeDe(QStringLiteral("aide"), plusGrandeIconeFenetre));
  setAttribute(Qt::WA_QuitOnClose, false);
  setProperty(proprieteSujet, QStringLiteral("aide"));
  txtPage_->setObjectName(QStringLiteral("txtPage"));
  txtPage_->setAccessibleName(QStringLiteral("Page d'aide"));
  partage_->setObjectName(QStringLiteral("partage"));
  partage_->setAccessibleName(QStringLiteral("Sommaire et page"));
  partage_->addWidget(BatitVolet());
  partage_->addWidget(txtPage_);
  partage_->setChildrenCollapsible(false);
  partage_->setStretchFactor(1, 1);
  BatitBarre();
  setCentralWidget(partage_);
  setContentsMargins(marge, 0, marge, marge);
  RemplitSommaire();
  Branche();
  txtPage_->setFocus(Qt::OtherFocusReason);
}

void frmAide::PlaceAupresDe(const QWidget* programme) {
  const QScreen* ecran =
      programme == nullptr ? QGuiApplication::primaryScreen() : programme->screen();
  const QRect place = ecran->availableGeometry();
  const QSize taille = TailleAide(place);
  resize(taille);
  if (programme != nullptr) {
    const QRect prise = programme->frameGeometry();
    // The border that the window manager will add is that of the other window.
    move(CoinAide(place, taille + prise.size() - programme->size(), prise));
  }
}

QAction* frmAide::Bouton(const char* nom, const QIcon& icone, const QString& titre,
                         const QKeySequence& touche) {
  QAction* action = barre_->addAction(icone, titre);
  action->setShortcut(touche);
  action->setToolTip(titre +
                     QStringLiteral(" (%1)").arg(touche.toString(QKeySequence::NativeText)));
  QWidget* controle = barre_->widgetForAction(action);
  controle->setObjectName(QStringLiteral("tbAide.") + QLatin1String(nom));
  controle->setFocusPolicy(Qt::TabFocus);
  return action;
}

void frmAide::BatitBarre() {
  barre_->setObjectName(QStringLiteral("tbAide"));
  barre_->setWindowTitle(QStringLiteral("Barre d'outils de l'aide"));
  barre_->setMovable(false);
  barre_->setContextMenuPolicy(Qt::PreventContextMenu);
  barre_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  QAction* precedent = Bouton("Precedent", style()->standardIcon(QStyle::SP_ArrowBack),
                              QStringLiteral("Précédent"), QKeySequence(Qt::ALT | Qt::Key_Left));
  QAction* suivant = Bouton("Suivant", style()->standardIcon(QStyle::SP_ArrowForward),
                            QStringLiteral("Suivant"), QKeySequence(Qt::ALT | Qt::Key_Right));
  QAction* sommaire = Bouton("Sommaire", IconeDe(QStringLiteral("aide")),
                             QStringLiteral("Sommaire"), QKeySequence(Qt::ALT | Qt::Key_Home));
  precedent->setEnabled(false);
  suivant->setEnabled(false);
  connect(precedent, &QAction::triggered, txtPage_, &QTextBrowser::backward);
  connect(suivant, &QAction::triggered, txtPage_, &QTextBrowser::forward);
  connect(txtPage_, &QTextBrowser::backwardAvailable, precedent, &QAction::setEnabled);
  connect(txtPage_, &QTextBrowser::forwardAvailable, suivant, &QAction::setEnabled);
  connect(sommaire, &QAction::triggered, this, [this] { Montre({}); });
  addToolBar(barre_);
}

QWidget* frmAide::BatitVolet() {
  txtRecherche_->setObjectName(QStringLiteral("txtRecherche"));
  txtRecherche_->setPlaceholderText(QStringLiteral("Rechercher dans l'aide"));
  txtRecherche_->setAccessibleName(txtRecherche_->placeholderText());
  txtRecherche_->setClearButtonEnabled(true);
  treeSommaire_->setObjectName(QStringLiteral("treeSommaire"));
  treeSommaire_->setAccessibleName(QStringLiteral("Sommaire"));
  treeSommaire_->setHeaderHidden(true);
  treeSommaire_->setIndentation(retrait);
  treeSommaire_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstResultats_->setObjectName(QStringLiteral("lstResultats"));
  lstResultats_->setAccessibleName(QStringLiteral("Pages trouvées"));
  lstResultats_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  txtRecherche_->installEventFilter(this);
  lstResultats_->installEventFilter(this);
  volet_->addWidget(treeSommaire_);
  volet_->addWidget(lstResultats_);
  auto* panneau = new QWidget(this);
  auto* colonne = new QVBoxLayout(panneau);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->addWidget(txtRecherche_);
  colonne->addWidget(volet_, 1);
  return panneau;
}

void frmAide::RemplitSommaire() {
  for (const ChapitreAide& chapitre : fichier_.sommaire()) {
    auto* tete = new QTreeWidgetItem(treeSommaire_, {chapitre.titre});
    tete->setFlags(Qt::ItemIsEnabled);
    QFont gras = tete->font(0);
    gras.setBold(true);
    tete->setFont(0, gras);
    for (const PageAide& page : chapitre.pages) {
      auto* entree = new QTreeWidgetItem(tete, {page.titre});
      entree->setData(0, roleSujet, page.sujet);
      entree->setToolTip(0, page.titre);
    }
  }
  treeSommaire_->expandAll();
}

void frmAide::Branche() {
  connect(treeSommaire_, &QTreeWidget::currentItemChanged, this,
          [this](const QTreeWidgetItem* entree) {
            if (entree != nullptr && !entree->data(0, roleSujet).isNull()) {
              MontrePage(entree->data(0, roleSujet).toString());
            }
          });
  connect(txtPage_, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& adresse) { SuitPage(adresse); });
  connect(txtRecherche_, &QLineEdit::textChanged, this, [this] { Cherche(); });
  connect(txtRecherche_, &QLineEdit::returnPressed, this, [this] { VaAuVolet(); });
  connect(lstResultats_, &QListWidget::currentItemChanged, this,
          [this](const QListWidgetItem* entree) { OuvreResultat(entree); });
  connect(lstResultats_, &QListWidget::itemClicked, this,
          [this](const QListWidgetItem* entree) { OuvreResultat(entree); });
  const auto raccourci = [this](const QKeySequence& touche, auto action) {
    connect(new QShortcut(touche, this), &QShortcut::activated, this, action);
  };
  raccourci(QKeySequence::Find, [this] {
    txtRecherche_->setFocus(Qt::ShortcutFocusReason);
    txtRecherche_->selectAll();
  });
  PoseTouchesTaille(*this, [this](int pas) { txtPage_->Agrandit(pas); });
}

void frmAide::Montre(const QString& sujet, const QStringList& paragraphes) {
  txtRecherche_->clear();
  txtPage_->setFocus(Qt::OtherFocusReason);
  const auto trouve = std::find_if(
      paragraphes.begin(), paragraphes.end(),
      [&](const QString& paragraphe) { return FichierAide::ContientAncre(sujet, paragraphe); });
  MontrePage(sujet, trouve == paragraphes.end() ? QString() : *trouve);
}

void frmAide::MontrePage(const QString& sujet, const QString& paragraphe) {
  const QString premiere = fichier_.sommaire().front().pages.front().sujet;
  QUrl adresse = FichierAide::Adresse(fichier_.Contient(sujet) ? sujet : premiere);
  if (!paragraphe.isEmpty()) {
    adresse.setFragment(paragraphe);
  }
  txtPage_->setSource(adresse);
}

void frmAide::Cherche() {
  const QString texte = txtRecherche_->text();
  const QSignalBlocker silence(lstResultats_);
  lstResultats_->clear();
  volet_->setCurrentWidget(texte.trimmed().isEmpty() ? static_cast<QWidget*>(treeSommaire_)
                                                     : lstResultats_);
  if (!recherche_) {
    recherche_.emplace(fichier_);
  }
  for (const PageAide& page : recherche_->Cherche(texte)) {
    auto* entree = new QListWidgetItem(page.titre, lstResultats_);
    entree->setData(roleSujet, page.sujet);
    entree->setToolTip(page.titre);
  }
  if (lstResultats_->count() == 0) {
    auto* rien = new QListWidgetItem(QStringLiteral("Aucune page trouvée"), lstResultats_);
    rien->setFlags(Qt::NoItemFlags);
  }
  Surligne();
}

void frmAide::VaAuVolet() {
  if (volet_->currentWidget() == treeSommaire_) {
    treeSommaire_->setFocus(Qt::OtherFocusReason);
    return;
  }
  QListWidgetItem* premiere = lstResultats_->item(0);
  if (premiere->flags() != Qt::NoItemFlags) {
    lstResultats_->setFocus(Qt::OtherFocusReason);
    if (lstResultats_->currentItem() == premiere) {
      OuvreResultat(premiere);
    }
    lstResultats_->setCurrentItem(premiere);
  }
}

void frmAide::OuvreResultat(const QListWidgetItem* entree) {
  if (entree != nullptr && !entree->data(roleSujet).isNull()) {
    MontrePage(entree->data(roleSujet).toString());
    VaAuPremierMot();
  }
}

void frmAide::SuitPage(const QUrl& adresse) {
  const QString sujet = FichierAide::Sujet(adresse);
  const QSignalBlocker silence(treeSommaire_);
  for (QTreeWidgetItemIterator i(treeSommaire_); *i != nullptr; ++i) {
    if ((*i)->data(0, roleSujet).toString() == sujet) {
      treeSommaire_->setCurrentItem(*i);
    }
  }
  paragraphe_ = adresse.fragment();
  Surligne();
}

void frmAide::Surligne() {
  const auto mots = MotsTrouves();
  txtPage_->setExtraSelections(mots.isEmpty() ? txtPage_->MarqueDuParagraphe(paragraphe_) : mots);
}

QList<QTextEdit::ExtraSelection> frmAide::MotsTrouves() const {
  QTextCharFormat marque;
  marque.setBackground(QColor(255, 224, 110));
  marque.setForeground(Qt::black);
  QList<QTextEdit::ExtraSelection> marques;
  for (const QRegularExpression& motif : RechercheAide::Expressions(txtRecherche_->text())) {
    QTextCursor ou(txtPage_->document());
    while (!(ou = txtPage_->document()->find(motif, ou)).isNull()) {
      marques.append({ou, marque});
    }
  }
  return marques;
}

void frmAide::VaAuPremierMot() {
  const auto marques = MotsTrouves();
  const auto premiere =
      std::min_element(marques.begin(), marques.end(),
                       [](const auto& a, const auto& b) { return a.cursor < b.cursor; });
  if (premiere != marques.end()) {
    QTextCursor ou = premiere->cursor;
    ou.clearSelection();
    txtPage_->setTextCursor(ou);
  }
}

void frmAide::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QMainWindow::keyPressEvent(evenement);
}

void frmAide::showEvent(QShowEvent* evenement) {
  QMainWindow::showEvent(evenement);
  if (!std::exchange(partagee_, true)) {
    const int volet = width() / partsLargeur;
    partage_->setSizes({volet, width() - volet});
  }
}

bool frmAide::eventFilter(QObject* objet, QEvent* evenement) {
  if (evenement->type() == QEvent::KeyPress) {
    const int touche = static_cast<QKeyEvent*>(evenement)->key();
    if (objet == txtRecherche_ && touche == Qt::Key_Down) {
      VaAuVolet();
      return true;
    }
    if (objet == lstResultats_ && touche == Qt::Key_Up && lstResultats_->currentRow() <= 0) {
      txtRecherche_->setFocus(Qt::OtherFocusReason);
      return true;
    }
  }
  return QMainWindow::eventFilter(objet, evenement);
}

}  // namespace gastrelle
