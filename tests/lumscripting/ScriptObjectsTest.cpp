// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <stdexcept>
#include <thread>

#include "lumscripting/ScriptObject.h"
#include "lumscripting/ScriptRegistry.h"
#include "lumscripting/events/QueueEvent.h"
#include "lumscripting/threads/DirectCall.h"
#include "support/RunningScripts.h"

namespace {

using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using lumscripting::ScriptRegistry;
using lumscripting::ScriptType;
using lumscripting::ScriptValue;
using test_support::AsText;

constexpr std::chrono::seconds kPatience(10);

// Does nothing off the thread on which it was made.
class Bell : public lumscripting::ScriptObject {
 public:
  Bell() {
    AddFunction({ToUTF16("ring"),
                 {{ToUTF16("who"), ScriptType::kString},
                  {ToUTF16("times"), ScriptType::kInteger},
                  {ToUTF16("pitch"), ScriptType::kNumber},
                  {ToUTF16("loud"), ScriptType::kBoolean, ToUTF8("Whether all hear it.")},
                  {ToUTF16("place"), ScriptType::kString, {}, true},
                  {ToUTF16("hour"), ScriptType::kInteger, ToUTF8("Of the day."), true}},
                 ScriptType::kString,
                 ToUTF8("Rings.")},
                [this](const auto& inArguments) {
                  EXPECT_EQ(std::this_thread::get_id(), mThread);
                  std::string text;
                  for (const ScriptValue& argument : inArguments)
                    text += AsText(argument) + ";";
                  ++mRings;
                  return ScriptValue(ToUTF16(text));
                });
    AddProperty({ToUTF16("rings"), ScriptType::kInteger, ToUTF8("How often it has rung.")}, [this] {
      EXPECT_EQ(std::this_thread::get_id(), mThread);
      return ScriptValue(static_cast<double>(mRings));
    });
    AddConstant({ToUTF16("TONE"), ToUTF16("dong"), {}});
    AddConstant({ToUTF16("TONE"), ToUTF16("ding"), ToUTF8("Its tone.")});
  }
  ~Bell() override { EXPECT_EQ(std::this_thread::get_id(), mThread); }

 private:
  const std::thread::id mThread = std::this_thread::get_id();
  int mRings = 0;
};

class RingEvent : public lumscripting::ScriptEventObject {
 public:
  lumcore::UTF16String mWho;

 protected:
  ScriptValue DoGetProperty(const lumcore::UTF16String&) const override { return mWho; }
};

class ScriptObjects : public test_support::RunningScripts {
 protected:
  ScriptObjects() {
    for (const char* name : {"Bell", "Gong"})
      ScriptRegistry::Get().RegisterObject(ToUTF16(name), ToUTF8("Makes noise"),
                                           [] { return boost::intrusive_ptr(new Bell); });
    lumscripting::ScriptDefinition ring;
    ring.name = ToUTF16("RingEvent");
    ring.properties = {{ToUTF16("who"), ScriptType::kString, {}}};
    ring.constants = {{ToUTF16("EVENT_RING"), ToUTF16("Bell.Ring"), ToUTF8("It rings")}};
    ScriptRegistry::Get().RegisterEvent(ring, [] { return std::make_unique<RingEvent>(); });
  }
  ~ScriptObjects() override {
    for (const char* name : {"Bell", "Gong", "RingEvent"})
      ScriptRegistry::Get().Unregister(ToUTF16(name));
  }
  bool Fire(const char* inWho, const char* inTarget = "Bell", const char* inType = "Bell.Ring") {
    const auto uiThread = std::this_thread::get_id();
    return lumscripting::events::QueueEvent(
        ToUTF16("RingEvent"), ToUTF16(inType),
        [inWho, uiThread](lumscripting::ScriptEventObject& ioEvent) {
          EXPECT_NE(std::this_thread::get_id(), uiThread);
          dynamic_cast<RingEvent&>(ioEvent).mWho = ToUTF16(inWho);
        },
        [this, inTarget] {
          ++mTargetsAsked;
          return mRunner->FindObject(ToUTF16(inTarget));
        });
  }

  int mTargetsAsked = 0;
};

TEST_F(ScriptObjects, AreGlobalsThatScriptsCannotChange) {
  EXPECT_EQ(Run("Bell.ring('me', -3, 4, true) + Bell.rings + Gong.rings"),
            "me;-3;4;true;undefined;undefined;10");
  EXPECT_EQ(Run("Bell.ring('me', 1, 1, true, undefined, 5)"), "me;1;1;true;undefined;5;");
  EXPECT_EQ(Run("Bell.rings = 7; Bell.TONE = 7; Bell.ring = 7; Bell.more = 7;"
                "[Bell.rings, Bell.TONE, typeof Bell.ring, Bell.more].join()"),
            "2,ding,function,");
  EXPECT_EQ(Run("Object.keys(RingEvent).join()"), "EVENT_RING");
  EXPECT_EQ(Run("help('Bell')"),
            "Bell: Makes noise\n"
            "  string ring(string who, integer times, number pitch, boolean loud, [string place], "
            "[integer hour])\n"
            "    Rings.\n"
            "    loud: Whether all hear it.\n"
            "    hour: Of the day.\n"
            "  readonly integer rings\n"
            "    How often it has rung.\n"
            "  TONE = \"ding\"\n"
            "    Its tone.\n");
  std::string reference;
  for (const auto& definition : mRunner->GetDefinitions())
    reference += lumcore::utility::ToStdString(WriteReference(definition));
  EXPECT_EQ(Run("help()"), reference);
  EXPECT_EQ(Run("help('Drum')"), "failed: test.js:1: TypeError: help: there is no object \"Drum\"");
}

TEST_F(ScriptObjects, RefuseWrongArgumentsByName) {
  const std::pair<const char*, const char*> rows[] = {
      {"7, 1, 1, true", "who must be a string"},
      {"'x', '1', 1, true", "times must be an integer"},
      {"'x', 1.5, 1, true", "times must be an integer"},
      {"'x', 2147483648, 1, true", "times must be an integer"},
      {"'x', NaN, 1, true", "times must be an integer"},
      {"'x', 1, null, true", "pitch must be a number"},
      {"'x', 1, 1, 0", "loud must be a boolean"},
      {"'x', 1, 1", "loud is missing"},
      {"", "who is missing"},
      {"'x', 1, undefined, true", "pitch must be a number"},
      {"'x', 1, 1, true, null", "place must be a string"},
      {"'x', 1, 1, true, 'y', '5'", "hour must be an integer"},
      {"'x', 1, 1, true, 'y', 5, 6", "too many arguments, the last is hour"},
  };
  for (const auto& [arguments, cause] : rows) {
    EXPECT_EQ(Run("\nBell.ring(" + std::string(arguments) + ")"),
              "failed: test.js:2: TypeError: Bell.ring: " + std::string(cause));
  }
  EXPECT_EQ(Run("Bell.rings"), "0");
  EXPECT_EQ(Run("Bell.addEventListener(1, log)"),
            "failed: test.js:1: TypeError: Bell.addEventListener: type must be a string");
  EXPECT_EQ(Run("Bell.removeEventListener('x', {})"),
            "failed: test.js:1: TypeError: Bell.removeEventListener: listener must be a function");
}

TEST_F(ScriptObjects, TheHostMayStandAroundEachCall) {
  mRunner->SetCallFunction([this](const std::function<void()>& inCall) {
    mLog.push_back("before");
    inCall();
    mLog.push_back("behind");
    throw std::runtime_error("out of tune");
  });
  Run("[() => Bell.ring('', 1, 1, true), () => Bell.rings, () => log('own')]"
      ".map(call => { try { return call(); } catch (e) { return e.message; } }).join()");
  mRunner->SetCallFunction(nullptr);
  EXPECT_EQ(Run("Bell.rings"), "1");
  EXPECT_EQ(TakeLog(),
            "before | behind | before | behind | before | own | behind | "
            "out of tune,out of tune,out of tune | 1");
}

TEST_F(ScriptObjects, EventsReachTheListenersOfTheirTargetBetweenScripts) {
  EXPECT_FALSE(Fire("nobody"));
  Run("'use strict';"
      "function second(e) { log('second ' + e.who) }"
      "Bell.addEventListener(RingEvent.EVENT_RING, function first(e) {"
      "  try { e.who = 'x' } catch (x) { log('fixed') }"
      "  log(['first', e.who, e.type, e.target === Bell, this === Bell].join());"
      "  Bell.removeEventListener('Bell.Ring', first);"
      "  Bell.removeEventListener('Bell.Ring', third);"
      "  Bell.addEventListener('Bell.Ring', () => log('late'));"
      "});"
      "function third() { log('third') }"
      "for (const f of [second, third, second]) Bell.addEventListener('Bell.Ring', f);"
      "Gong.addEventListener('Gong.Ring', () => log('gong'));");
  mLog.clear();
  EXPECT_FALSE(Fire("x", "Bell", "Bell.Stop"));
  EXPECT_EQ(mTargetsAsked, 0) << "no script listens to any event of this type";
  EXPECT_FALSE(Fire("x", "Gong"));
  EXPECT_FALSE(Fire("x", "no such object"));
  Queue("log('script'); 'queued before'");
  EXPECT_TRUE(Fire("a"));
  EXPECT_TRUE(Fire("b"));
  WaitForResult();
  EXPECT_EQ(TakeLog(),
            "script | queued before | fixed | first,a,Bell.Ring,true,true | second a | "
            "second b | late");
}

TEST_F(ScriptObjects, FailingListenersAreToldAndTheOthersHearTheEvent) {
  AddFunction("stopMe", [this](const auto&) {
    mRunner->StopRunning();
    return ScriptValue();
  });
  Run("for (const f of [\n"
      "  () => { noSuchName },\n"
      "  () => { throw 'a text' },\n"
      "  () => { stopMe(); for (;;) {} },\n"
      "  () => { log('heard') }]) Bell.addEventListener('Bell.Ring', f);");
  mLog.clear();
  EXPECT_TRUE(Fire("a"));
  EXPECT_EQ(TakeLog(),
            "failed: test.js:2: ReferenceError: noSuchName is not defined | "
            "failed: test.js:3: a text | failed: RingEvent:0: The script was stopped. | heard");
  EXPECT_FALSE(lumscripting::events::QueueEvent(
      ToUTF16("RingEvent"), ToUTF16("Bell.Ring"), [](auto&) {},
      []() -> boost::intrusive_ptr<lumscripting::ScriptObject> {
        throw std::runtime_error("no target");
      }));
  EXPECT_EQ(TakeLog(), "failed: no target");
  EXPECT_TRUE(lumscripting::events::QueueEvent(
      ToUTF16("RingEvent"), ToUTF16("Bell.Ring"),
      [](auto&) { throw std::runtime_error("no filling"); },
      [this] { return mRunner->FindObject(ToUTF16("Bell")); }));
  EXPECT_EQ(TakeLog(), "failed: no filling");
}

TEST_F(ScriptObjects, WithAFactoryThatThrowsScriptsSeeTheOthers) {
  ScriptRegistry::Get().RegisterObject(ToUTF16("Gong"), {},
                                       []() -> boost::intrusive_ptr<lumscripting::ScriptObject> {
                                         throw std::runtime_error("cracked");
                                       });
  EXPECT_EQ(Run("typeof Gong + Bell.rings"), "undefined0");
  EXPECT_EQ(mLog.front(), "failed: cracked");
}

TEST_F(ScriptObjects, EventsDoNotKeepARunnerFromShuttingDown) {
  // In a listener that never ends, with an event behind it.
  AddFunction("inListener", [this](const auto&) {
    EXPECT_TRUE(mRunner->ShutDown(kPatience));
    mApplication.Quit();
    return ScriptValue();
  });
  Run("Bell.addEventListener('Bell.Ring', () => {"
      "  log('heard'); try { inListener() } catch (e) {} for (;;) {} })");
  mLog.clear();
  EXPECT_TRUE(Fire("a"));
  EXPECT_TRUE(Fire("b"));
  mApplication.Run();
  mApplication.PumpPendingEvents();
  EXPECT_EQ(mLog, std::vector<std::string>{"heard"});
  EXPECT_FALSE(Fire("c"));

  // While an event that is being filled waits for this thread.
  mRunner = std::make_unique<lumscripting::ScriptRunner>();
  Run("Bell.addEventListener('Bell.Ring', () => {})");
  lumscripting::events::QueueEvent(
      ToUTF16("RingEvent"), ToUTF16("Bell.Ring"),
      [this](auto&) {
        lumscripting::threads::DirectVoidCallOnUIThread([this] {
          EXPECT_TRUE(mRunner->ShutDown(kPatience));
          mRunner.reset();
          mApplication.Quit();
        });
      },
      [this] { return mRunner->FindObject(ToUTF16("Bell")); });
  mApplication.Run();
}

TEST_F(ScriptObjects, LiveAsLongAsTheirCallAlsoWhenItEndsTheRunner) {
  struct Ending : Bell {
    explicit Ending(const std::function<void()>& inEnd) {
      AddProperty({ToUTF16("end"), ScriptType::kNumber, {}}, [this, inEnd] {
        inEnd();
        return GetProperty(0);
      });
    }
  };
  ScriptRegistry::Get().RegisterObject(ToUTF16("Gong"), {}, [this] {
    return boost::intrusive_ptr<lumscripting::ScriptObject>(new Ending([this] {
      mRunner.reset();
      mApplication.Quit();
    }));
  });
  Queue("Gong.end");
  mApplication.Run();
  EXPECT_TRUE(mLog.empty());
}

}  // namespace
