// Draws what stands out in a text: headings, keys, numbers and dashes. It changes formats of the
// drawing alone, never the text. The toolkit's own highlighter would draw the whole page anew at
// each key.
#pragma once

#include <array>

#include <QFont>
#include <QObject>
#include <QPalette>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextDocument>

namespace gastrelle {

class Surligneur final : public QObject {
 public:
  /// Belongs to the document, whose lines it draws as they change.
  explicit Surligneur(QTextDocument& document);

  /// Draws from now on for that font, in the colours of that palette.
  void Repeint(const QFont& police, const QPalette& palette);

 private:
  /// The lines from the one that holds a position to the one that holds another.
  void Surligne(int debut, int fin);
  void SurligneLigne(const QTextBlock& ligne);

  QTextDocument& document_;
  std::array<QTextCharFormat, 3> formats_;  ///< by Trait
};

}  // namespace gastrelle
