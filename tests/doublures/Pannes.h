// What fails, and how: one call, or an operation whose writes fail one after the other.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "doublures/Bibliotheque.h"

namespace gastrelle::essai {

/// Runs a call and tells its failure; none fails the test.
template <class F>
Panne PanneDe(F&& appel) {
  try {
    appel();
  } catch (const ErreurExecution& erreur) {
    return erreur.panne();
  }
  ADD_FAILURE() << "aucune panne";
  return {};
}

/// Runs a call that ends the program and tells the status; one that goes on fails the test.
template <class F>
int FinDe(F&& appel) {
  try {
    appel();
  } catch (const FinDuProgramme& fin) {
    return fin.statut;
  }
  ADD_FAILURE() << "le programme continue";
  return -1;
}

/// Runs an operation again and again on fresh libraries, its n-th write failing, and hands what is
/// then on file to `verifie(n)`. Every write fails once with nothing done and once half done.
template <class Prepare, class Operation, class Verifie>
void EchoueAChaqueEcriture(std::size_t ecritures, Prepare prepare, Operation operation,
                           Verifie verifie) {
  for (const Maniere maniere : {Maniere::rienFait, Maniere::moitieEcrite}) {
    for (std::size_t n = 1; n <= ecritures; ++n) {
      SCOPED_TRACE("écriture " + std::to_string(n));
      Bibliotheque avec;
      prepare(avec);
      avec.Demarre();
      avec.disque.EchoueALaNiemeEcriture(n, Panne::disquePlein, maniere);
      EXPECT_THROW(operation(avec), ErreurExecution);
      verifie(avec, n, maniere);
    }
  }
}

}  // namespace gastrelle::essai
