#include "plateforme/FinImprevue.h"

#include <cstdlib>
#include <utility>

namespace gastrelle {
namespace {

FinImprevue* enVigueur = nullptr;

}  // namespace

FinImprevue::FinImprevue(std::function<void()> surFin) : surFin_(std::move(surFin)) {
  static const int inscrite = std::atexit(Survient);
  enVigueur = inscrite == 0 ? this : nullptr;
}

FinImprevue::~FinImprevue() {
  enVigueur = nullptr;
}

void FinImprevue::Survient() {
  if (const FinImprevue* fin = std::exchange(enVigueur, nullptr)) {
    fin->surFin_();
  }
}

}  // namespace gastrelle
