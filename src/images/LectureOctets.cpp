#include "images/LectureOctets.h"

#include <algorithm>

namespace gastrelle {
namespace {

constexpr unsigned bitsParOctet = 8;

quint32 Assemble(const QByteArray& octets) {
  quint32 nombre = 0;
  for (const char octet : octets) {
    nombre = nombre << bitsParOctet | static_cast<quint8>(octet);
  }
  return nombre;
}

}  // namespace

QByteArray LectureOctets::Nombre(int octets) {
  QByteArray lus = source_.read(octets);
  if (lus.size() != octets) {
    juste_ = false;
    lus = QByteArray(octets, '\0');
  }
  return lus;
}

quint32 LectureOctets::GrandBoutien(int octets) {
  return Assemble(Nombre(octets));
}

quint32 LectureOctets::PetitBoutien(int octets) {
  QByteArray lus = Nombre(octets);
  std::reverse(lus.begin(), lus.end());
  return Assemble(lus);
}

}  // namespace gastrelle
