#include "shell/LecteurAide.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>

#include "controles/Teintes.h"
#include "shell/FichierAide.h"

namespace gastrelle {
namespace {

/// Distance from the text to the edges of the page, in pixels.
constexpr int margePage = 16;

constexpr int partPapier = 90;  ///< of a tinted paragraph's ground, in hundredths

QColor CouleurDesLiens(const QColor& papier) {
  constexpr QRgb surClair = 0xff0b57a4;
  constexpr QRgb surSombre = 0xff9cc4ff;
  return PlusLisible(QColor::fromRgb(surSombre), QColor::fromRgb(surClair), papier);
}

/// The style sheet names its colours; a palette gives them.
QByteArray AvecCouleurs(QByteArray style, const QPalette& palette) {
  style.replace("$titre", Framboise(palette).name().toLatin1());
  style.replace("$lien", CouleurDesLiens(palette.color(QPalette::Base)).name().toLatin1());
  return style;
}

}  // namespace

LecteurAide::LecteurAide(QWidget* parent) : QTextBrowser(parent) {
  document()->setDocumentMargin(margePage);
}

QList<QTextEdit::ExtraSelection> LecteurAide::MarqueDuParagraphe(const QString& ancre) const {
  const QTextCursor paragraphe = Paragraphe(ancre);
  if (paragraphe.isNull()) {
    return {};
  }
  QTextCharFormat teinte;
  teinte.setBackground(Melange(Framboise(palette()), palette().color(QPalette::Base), partPapier));
  return {{paragraphe, teinte}};
}

QTextCursor LecteurAide::Paragraphe(const QString& ancre) const {
  for (QTextBlock bloc = document()->begin(); bloc.isValid(); bloc = bloc.next()) {
    for (auto i = bloc.begin(); !i.atEnd(); ++i) {
      if (i.fragment().charFormat().anchorNames().contains(ancre)) {
        QTextCursor ou(bloc);
        ou.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        return ou;
      }
    }
  }
  return {};
}

void LecteurAide::Agrandit(int points) {
  points == 0 ? setFont(QFont()) : zoomIn(points);
}

QVariant LecteurAide::loadResource(int genre, const QUrl& adresse) {
  if (genre == QTextDocument::ImageResource) {
    QImage vide(1, 1, QImage::Format_ARGB32_Premultiplied);
    vide.fill(Qt::transparent);
    return vide;  // for none at all, the toolkit would look on the disk
  }
  if (!FichierAide::EstDedans(adresse)) {
    return {};
  }
  const QVariant ressource = QTextBrowser::loadResource(genre, adresse);
  return genre == QTextDocument::StyleSheetResource
             ? AvecCouleurs(ressource.toByteArray(), palette())
             : ressource;
}

void LecteurAide::changeEvent(QEvent* evenement) {
  QTextBrowser::changeEvent(evenement);
  if (evenement->type() == QEvent::PaletteChange && source().isValid()) {
    Recharge();
  }
}

void LecteurAide::doSetSource(const QUrl& adresse, QTextDocument::ResourceType genre) {
  QTextBrowser::doSetSource(adresse, genre);
  QTextCursor debut = Paragraphe(adresse.fragment());
  if (!debut.isNull()) {
    constexpr int lignesAuDessus = 3;
    debut.setPosition(debut.selectionStart());
    setTextCursor(debut);  // from here a screen reader reads on
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(debut).top() -
                                  lignesAuDessus * fontMetrics().lineSpacing());
  }
}

void LecteurAide::Recharge() {
  const int hauteur = verticalScrollBar()->value();
  const int ancre = textCursor().anchor();
  const int position = textCursor().position();
  reload();
  QTextCursor selection(document());
  selection.setPosition(ancre);
  selection.setPosition(position, QTextCursor::KeepAnchor);
  setTextCursor(selection);
  document()->size();  // the page is laid out to its end, and the bar knows its length
  verticalScrollBar()->setValue(hauteur);
}

}  // namespace gastrelle
