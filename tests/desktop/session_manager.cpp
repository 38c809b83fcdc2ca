#include "desktop/session_manager.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <array>
#include <cstdlib>

#include "desktop/processes.h"

// After everything else: its macros leave no name alone.
#include <X11/SM/SMlib.h>

namespace ratanka {

struct SessionManager::Talk {
  int addressCount = 0;
  IceListenObj* addresses = nullptr;
  IceConn connection = nullptr;
  SmsConn program = nullptr;
  bool isSaved = false;  // signed on, and asked once what it would save, as newcomers are
  bool isEnding = false;
  bool isGone = false;
};

namespace {

SessionManager::Talk& talkOf(SmPointer carried) {
  return *static_cast<SessionManager::Talk*>(carried);
}

int signOn(SmsConn program, SmPointer, char* formerName) {
  std::free(formerName);
  char* const name = SmsGenerateClientID(program);
  SmsRegisterClientReply(program, name);
  std::free(name);
  SmsSaveYourself(program, SmSaveLocal, False, SmInteractStyleNone, False);
  return 1;
}

void wasSaved(SmsConn program, SmPointer talk, int) {
  talkOf(talk).isSaved = true;
  if (talkOf(talk).isEnding) {
    SmsDie(program);
  } else {
    SmsSaveComplete(program);
  }
}

void left(SmsConn, SmPointer talk, int count, char** reasons) {
  SmFreeReasons(count, reasons);
  talkOf(talk).isGone = true;
}

void forget(SmsConn, SmPointer, int count, SmProp** properties) {
  for (int i = 0; i < count; ++i) SmFreeProperty(properties[i]);
  std::free(properties);
}

void forgetNames(SmsConn, SmPointer, int count, char** names) {
  for (int i = 0; i < count; ++i) std::free(names[i]);
  std::free(names);
}

int welcome(SmsConn program, SmPointer talk, unsigned long* mask, SmsCallbacks* answers, char**) {
  talkOf(talk).program = program;
  *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
          SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
          SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
          SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
  answers->register_client = {signOn, talk};
  answers->interact_request = {[](SmsConn conn, SmPointer, int) { SmsInteract(conn); }, talk};
  answers->interact_done = {[](SmsConn, SmPointer, int) {}, talk};
  answers->save_yourself_request = {[](SmsConn, SmPointer, int, int, int, int, int) {}, talk};
  answers->save_yourself_phase2_request = {
      [](SmsConn conn, SmPointer) { SmsSaveYourselfPhase2(conn); }, talk};
  answers->save_yourself_done = {wasSaved, talk};
  answers->close_connection = {left, talk};
  answers->set_properties = {forget, talk};
  answers->delete_properties = {forgetNames, talk};
  answers->get_properties = {[](SmsConn conn, SmPointer) { SmsReturnProperties(conn, 0, nullptr); },
                             talk};
  return 1;
}

int letAllIn(char*) { return 1; }

bool isReady(int descriptor) {
  pollfd waiting{descriptor, POLLIN, 0};
  return poll(&waiting, 1, 0) > 0;
}

}  // namespace

SessionManager::SessionManager() : talk_(std::make_unique<Talk>()) {
  char vendor[] = "Rátanka";
  char release[] = "1";
  std::array<char, 200> error{};
  const int room = static_cast<int>(error.size());
  EXPECT_TRUE(
      SmsInitialize(vendor, release, welcome, talk_.get(), letAllIn, room, error.data()) != 0 &&
      IceListenForConnections(&talk_->addressCount, &talk_->addresses, room, error.data()) != 0)
      << error.data();
  for (int i = 0; i < talk_->addressCount; ++i) {
    IceSetHostBasedAuthProc(talk_->addresses[i], letAllIn);
  }
}

SessionManager::~SessionManager() {
  if (talk_->program != nullptr) SmsCleanUp(talk_->program);
  if (talk_->connection != nullptr) {
    IceSetShutdownNegotiation(talk_->connection, False);
    IceCloseConnection(talk_->connection);
  }
  IceFreeListenObjs(talk_->addressCount, talk_->addresses);
}

std::string SessionManager::variable() const {
  char* const addresses = IceComposeNetworkIdList(talk_->addressCount, talk_->addresses);
  std::string result = std::string("SESSION_MANAGER=") + addresses;
  std::free(addresses);
  return result;
}

bool SessionManager::waitUntil(bool Talk::*holds) {
  Talk& talk = *talk_;
  return waitFor([&] {
    for (int i = 0; i < talk.addressCount && talk.connection == nullptr; ++i) {
      IceAcceptStatus status{};
      if (!isReady(IceGetListenConnectionNumber(talk.addresses[i]))) continue;
      talk.connection = IceAcceptConnection(talk.addresses[i], &status);
    }
    while (talk.connection != nullptr && !talk.isGone &&
           isReady(IceConnectionNumber(talk.connection))) {
      IceProcessMessages(talk.connection, nullptr, nullptr);
    }
    return talk.*holds;
  });
}

bool SessionManager::waitForProgram() { return waitUntil(&Talk::isSaved); }

bool SessionManager::endSession() {
  if (talk_->program == nullptr) return false;
  talk_->isEnding = true;
  SmsSaveYourself(talk_->program, SmSaveBoth, True, SmInteractStyleNone, False);
  return waitUntil(&Talk::isGone);
}

}  // namespace ratanka
