// Numbers and bytes of a file's format, one after the other; what lies behind the end is zero.
#pragma once

#include <QByteArray>
#include <QIODevice>

namespace gastrelle {

class LectureOctets {
 public:
  /// `source`: open for reading, at any place, and there for as long as this object.
  explicit LectureOctets(QIODevice& source) : source_(source) {}

  void Va(qint64 place) { juste_ = juste_ && place <= source_.size() && source_.seek(place); }
  void Saute(qint64 octets) { Va(source_.pos() + octets); }
  [[nodiscard]] qint64 Place() const { return source_.pos(); }
  /// That many bytes, fewer at the end.
  [[nodiscard]] QByteArray Prend(qint64 octets) { return source_.read(octets); }
  /// A number of one to four bytes, its highest first.
  [[nodiscard]] quint32 GrandBoutien(int octets);
  /// The same, its lowest first.
  [[nodiscard]] quint32 PetitBoutien(int octets);
  /// False once a place or a number lay behind the end, wholly or in part.
  [[nodiscard]] bool Juste() const { return juste_; }

 private:
  [[nodiscard]] QByteArray Nombre(int octets);

  QIODevice& source_;
  bool juste_ = true;
};

}  // namespace gastrelle
