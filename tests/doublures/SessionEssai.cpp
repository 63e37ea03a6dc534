#include "doublures/SessionEssai.h"

#include <array>
#include <cstdlib>
#include <functional>
#include <sys/socket.h>
#include <utility>
#include <vector>

#include <QSocketNotifier>
#include <QTest>

#include "doublures/EcranVirtuel.h"

// These define words that the toolkit's headers use.
#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>

namespace gastrelle::essai {

struct SessionEssai::Bureau {
  int portes = 0;
  IceListenObj* ecoutees = nullptr;
  std::vector<std::unique_ptr<QSocketNotifier>> guets;
  QString adresse;
  IceConn liaison = nullptr;
  SmsConn programme = nullptr;
  int enregistrements = 0;

  void Guette(int descripteur, const std::function<void()>& suite) {
    auto& guet =
        guets.emplace_back(std::make_unique<QSocketNotifier>(descripteur, QSocketNotifier::Read));
    QObject::connect(guet.get(), &QSocketNotifier::activated, guet.get(), suite);
  }
  void Accepte(IceListenObj porte) {
    IceAcceptStatus etat{};
    liaison = IceAcceptConnection(porte, &etat);
    if (liaison != nullptr) {
      Guette(IceConnectionNumber(liaison), [this] { Traite(); });
    }
  }
  void Traite() {
    if (liaison != nullptr &&
        IceProcessMessages(liaison, nullptr, nullptr) != IceProcessMessagesSuccess) {
      Raccroche();
    }
  }
  void OublieLeProgramme() {
    if (SmsConn parti = std::exchange(programme, nullptr)) {
      SmsCleanUp(parti);
    }
  }
  void Raccroche() {
    for (const auto& guet : guets) {
      guet->setEnabled(false);
    }
    OublieLeProgramme();  // as long as the library knows it, it keeps the connection
    if (liaison != nullptr) {
      ::shutdown(IceConnectionNumber(liaison), SHUT_RDWR);  // a word of farewell would be said else
      IceSetShutdownNegotiation(liaison, False);
      IceCloseConnection(liaison);
    }
    liaison = nullptr;
  }
};

namespace {

Status Nomme(SmsConn programme, SmPointer /*bureau*/, char* /*ancien*/) {
  char* nom = SmsGenerateClientID(programme);
  SmsRegisterClientReply(programme, nom);
  ::free(nom);
  SmsSaveYourself(programme, SmSaveLocal, False, SmInteractStyleNone, False);
  return 1;
}

void Oublie(SmsConn /*programme*/, SmPointer /*bureau*/, int nombre, SmProp** proprietes) {
  for (int i = 0; i < nombre; ++i) {
    SmFreeProperty(proprietes[i]);
  }
  ::free(proprietes);
}

void OublieLesNoms(SmsConn /*programme*/, SmPointer /*bureau*/, int nombre, char** noms) {
  for (int i = 0; i < nombre; ++i) {
    ::free(noms[i]);
  }
  ::free(noms);
}

}  // namespace

SessionEssai::SessionEssai() : bureau_(std::make_unique<Bureau>()) {
  IceSetIOErrorHandler([](IceConn /*liaison*/) {});  // the library would end the tests
  static Bureau* enCours = nullptr;
  enCours = bureau_.get();
  constexpr int longueur = 256;
  std::array<char, longueur> faute{};
  const auto accueille = [](SmsConn programme, SmPointer /*x*/, unsigned long* masque,
                            SmsCallbacks* rappels, char** /*refus*/) -> Status {
    enCours->programme = programme;
    *masque = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
              SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
              SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
              SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    *rappels = {};
    rappels->register_client.callback = Nomme;
    rappels->save_yourself_done.callback = [](SmsConn /*c*/, SmPointer /*x*/, Bool /*reussi*/) {
      ++enCours->enregistrements;
    };
    rappels->close_connection.callback = [](SmsConn /*c*/, SmPointer /*x*/, int nombre,
                                            char** raisons) {
      SmFreeReasons(nombre, raisons);
      enCours->OublieLeProgramme();
    };
    rappels->set_properties.callback = Oublie;
    rappels->delete_properties.callback = OublieLesNoms;
    return 1;
  };
  const auto chacun = [](char* /*machine*/) -> Bool { return True; };
  static bool pret =
      SmsInitialize("essai", "1", accueille, nullptr, chacun, longueur, faute.data()) != 0;
  if (!pret ||
      IceListenForConnections(&bureau_->portes, &bureau_->ecoutees, longueur, faute.data()) == 0) {
    return;
  }
  for (int i = 0; i < bureau_->portes; ++i) {
    IceListenObj porte = bureau_->ecoutees[i];
    IceSetHostBasedAuthProc(porte, chacun);
    bureau_->Guette(IceGetListenConnectionNumber(porte),
                    [this, porte] { bureau_->Accepte(porte); });
  }
  char* noms = IceComposeNetworkIdList(bureau_->portes, bureau_->ecoutees);
  bureau_->adresse = QString::fromLatin1(noms);
  ::free(noms);
}

SessionEssai::~SessionEssai() {
  Disparait();
  if (bureau_->ecoutees != nullptr) {
    IceFreeListenObjs(bureau_->portes, bureau_->ecoutees);
  }
}

QString SessionEssai::adresse() const {
  return bureau_->adresse;
}

bool SessionEssai::programmePresent() const {
  return bureau_->enregistrements > 0;
}

bool SessionEssai::AnnonceLaFin() {
  const int avant = bureau_->enregistrements;
  SmsSaveYourself(bureau_->programme, SmSaveBoth, True, SmInteractStyleAny, False);
  IceFlush(bureau_->liaison);
  return QTest::qWaitFor([&] { return bureau_->enregistrements > avant; }, patience);
}

void SessionEssai::RevientSurLaFin() {
  SmsShutdownCancelled(bureau_->programme);
  IceFlush(bureau_->liaison);
}

void SessionEssai::Renvoie() {
  SmsDie(bureau_->programme);
  IceFlush(bureau_->liaison);
}

void SessionEssai::Disparait() {
  bureau_->Raccroche();
}

}  // namespace gastrelle::essai
