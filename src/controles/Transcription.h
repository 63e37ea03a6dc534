// What a box makes of a text that is typed or pasted, before its length counts. The files hold
// Windows-1252: what a French reader would write for another character is written in its place.
#pragma once

#include <QChar>
#include <QString>

namespace gastrelle {

struct Transcription {
  QString texte;       ///< holds nothing but what the files hold
  bool perte = false;  ///< "?" stands for at least one character that is lost
};

/// Composed form; quantities, units, bullets, dashes and quotation marks as they are written by
/// hand; base letters for letters that the code page hasn't; nothing for pictures and for what
/// can't be seen; "?" for what is left. Every kind of line break is "\n". Numbers never run into
/// each other: "1⅓" is "1 1/3". What has been transcribed isn't changed by it again.
[[nodiscard]] Transcription Transcrit(const QString& texte);

/// For the path of a file, whose name is what it is: composed form, and "?" for each character that
/// the files can't hold.
[[nodiscard]] Transcription Compose(const QString& texte);

/// True if the files can hold every character of a text.
[[nodiscard]] bool SeRange(const QString& texte);

/// Where to begin to read so that what is inserted at `ou` is understood: a number from its first
/// digit on, and the letter that an accent may go with. `caractereA` answers the character at an
/// index.
template <class CaractereA>
[[nodiscard]] int DebutLecture(int ou, const CaractereA& caractereA) {
  int debut = ou;
  while (debut > 0 && caractereA(debut - 1).isNumber()) {
    --debut;
  }
  const bool lettre = debut == ou && ou > 0 && caractereA(ou - 1).isLetter();
  return lettre ? ou - 1 : debut;
}

}  // namespace gastrelle
