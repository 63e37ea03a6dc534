#include "controles/ZoneTexte.h"

#include <algorithm>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

#include "controles/Conversion.h"
#include "controles/MemoireTexte.h"
#include "controles/Touches.h"
#include "controles/Transcription.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

/// A foreign file may hold a line feed or a carriage return alone: they break no line as CR LF
/// does, and come back as they were. On the screen these stand for them.
constexpr QChar lfSeul{QChar::LineSeparator};
constexpr QChar crSeul{u'\x85'};

QString Montrable(std::string_view texte) {
  return VersQt(texte)
      .replace(QStringLiteral("\r\n"), QString(QChar::ParagraphSeparator))
      .replace(QChar(u'\n'), lfSeul)
      .replace(QChar(u'\r'), crSeul);
}

/// The text of a document with CR LF between its lines: no-break spaces stay what they are.
QString TexteBrut(const QTextDocument& document) {
  return document.toRawText()
      .replace(lfSeul, QChar(u'\n'))
      .replace(crSeul, QChar(u'\r'))
      .replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
}

/// Length as stored: a line break is two characters.
qsizetype LongueurRangee(const QTextDocument& document) {
  return document.characterCount() - 1 + document.blockCount() - 1;
}

qsizetype LongueurRangee(const QString& passage) {
  return passage.size() + passage.count(QChar::ParagraphSeparator);
}

/// Lets go of the broken line that was reckoned for the place of the cursor, thirty-five bytes a
/// letter: the toolkit keeps it until the line is drawn, which in a hidden box is never.
void OublieLaLigneCoupee(const QTextCursor& curseur) {
  const QRectF auDessus(0, -2, 1, 1);  // no line is there
  QImage ailleurs(1, 1, QImage::Format_Mono);
  QPainter peintre(&ailleurs);
  curseur.block().layout()->draw(&peintre, {}, {}, auDessus);
}

}  // namespace

ZoneTexte::ZoneTexte(const QString& nom, int limite, QWidget* parent)
    : QPlainTextEdit(parent), limite_(limite) {
  setObjectName(nom);
  setProperty("maxLength", limite);
  setTabChangesFocus(true);
  connect(document(), &QTextDocument::contentsChange, this, [this](int ou, int, int ajoutes) {
    debutSaisie_ = ou;
    finSaisie_ = ou + ajoutes;
  });
  connect(document(), &QTextDocument::redoAvailable, this,
          [this](bool possible) { refaisable_ = possible; });
  connect(this, &QPlainTextEdit::textChanged, this, [this] { Corrige(); });
}

void ZoneTexte::PoseTexte(std::string_view texte) {
  if (MemoireDeTexte(texte) > plafondMemoireTexte) {
    throw ErreurExecution(Panne::memoireInsuffisante);
  }
  parCode_ = true;
  CoupeLesLignes(TientUnMotSansFin(texte) ? QTextOption::WrapAnywhere
                                          : QTextOption::WrapAtWordBoundaryOrAnywhere);
  setPlainText(Montrable(texte));
  parCode_ = false;
}

void ZoneTexte::CoupeLesLignes(QTextOption::WrapMode ou) {
  if (ou != wordWrapMode()) {
    clear();  // the text that is leaving isn't broken anew
    setWordWrapMode(ou);
  }
}

void ZoneTexte::RemplaceTexte(std::string_view texte) {
  parCode_ = true;
  QTextCursor tout(document());
  if (Texte() != texte) {
    tout.select(QTextCursor::Document);
    tout.insertText(Montrable(texte));
  }
  setTextCursor(QTextCursor(document()));
  parCode_ = false;
}

std::string ZoneTexte::Texte() const {
  return DepuisQt(TexteBrut(*document()));
}

void ZoneTexte::RendLectureSeule() {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void ZoneTexte::keyPressEvent(QKeyEvent* touche) {
  // What is going to be corrected is a step of its own, so that it is undone with its correction.
  const QString texte = touche->text();
  if (RefuseLettre(*touche)) {
    QApplication::beep();
    return;
  }
  const bool pleine = limite_ > 0 && LongueurRangee(*document()) >= limite_;
  const bool corrigee =
      !texte.isEmpty() && (!SeRange(texte) || (pleine && texte.front().isPrint()));
  QTextCursor saisie(document());
  if (corrigee) {
    saisie.beginEditBlock();
  }
  QPlainTextEdit::keyPressEvent(touche);
  if (corrigee) {
    saisie.endEditBlock();
  }
}

void ZoneTexte::hideEvent(QHideEvent* evenement) {
  QPlainTextEdit::hideEvent(evenement);
  OublieLaLigneCoupee(textCursor());
}

void ZoneTexte::Corrige() {
  // What is undone or done again brings back what was right before; of the last step to be done
  // again the document tells only afterwards.
  if (parCode_ || finSaisie_ <= debutSaisie_ || document()->isRedoAvailable() || refaisable_) {
    return;
  }
  parCode_ = true;
  const int debut = DebutLecture(
      debutSaisie_, [this](int position) { return document()->characterAt(position); });
  CorrigePassage(debut, debutSaisie_, std::min(finSaisie_, document()->characterCount() - 1));
  parCode_ = false;
}

void ZoneTexte::CorrigePassage(int debut, int saisie, int fin) {
  QTextCursor passage(document());
  passage.setPosition(debut);
  passage.setPosition(fin, QTextCursor::KeepAnchor);
  // selectedText turns no line into "\n": paragraphs stay paragraph separators.
  const QString avant = passage.selectedText();
  const Transcription transcription =
      Transcrit(QString(avant).replace(QChar::ParagraphSeparator, QChar(u'\n')));
  const QString entier =
      QString(transcription.texte).replace(QChar(u'\n'), QChar::ParagraphSeparator);
  const QString garde = CeQuiTient(avant, entier, saisie - debut);
  if (transcription.perte || garde != entier) {
    QApplication::beep();
  }
  if (garde != avant) {
    passage.joinPreviousEditBlock();
    passage.insertText(garde);
    passage.endEditBlock();
    setTextCursor(passage);
  }
}

bool ZoneTexte::Deborde(const QString& garde) const {
  constexpr qsizetype collage = 100;  // less than that isn't worth the reckoning
  constexpr std::size_t plusLong = std::size_t{1} << 21;
  if (limite_ > 0 || garde.size() < collage) {
    return false;
  }
  const std::string texte = Texte();
  return texte.size() > plusLong || MemoireDeTexte(texte) > plafondMemoireTexte;
}

QString ZoneTexte::CeQuiTient(const QString& avant, QString garde, qsizetype acquis) const {
  if (Deborde(garde)) {
    garde.truncate(acquis);
  }
  if (limite_ > 0) {
    qsizetype trop =
        LongueurRangee(*document()) - LongueurRangee(avant) + LongueurRangee(garde) - limite_;
    qsizetype fin = garde.size();
    while (trop > 0 && fin > acquis) {
      --fin;
      trop -= garde.at(fin) == QChar::ParagraphSeparator ? 2 : 1;
    }
    garde.truncate(fin);
  }
  return garde;
}

bool ZoneTexte::RefuseLettre(const QKeyEvent& touche) const {
  const QString texte = touche.text();
  const bool lettre = EstTouchePlaine(touche) && !texte.isEmpty() && texte.front().isPrint() &&
                      !texte.front().isMark();  // an accent joins the letter before it
  return lettre && !isReadOnly() && !textCursor().hasSelection() && limite_ > 0 &&
         LongueurRangee(*document()) >= limite_;
}

}  // namespace gastrelle
