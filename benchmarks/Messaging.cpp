// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <boost/signals2/signal.hpp>
#include <deque>

#include "QtPeer.h"
#include "Receivers.h"
#include "support/Allocations.h"
#include "support/Pair.h"
#include "vek/messaging/Broadcaster.h"

namespace {

using Broadcaster = vek::messaging::Broadcaster<const long&>;

template <class Send>
void Time(benchmark::State& ioState, int inListeners, Send inSend) {
  long message = 0;
  for (auto _ : ioState) {
    inSend(++message);
    benchmark::ClobberMemory();
  }
  ioState.SetItemsProcessed(ioState.iterations() * inListeners);
}

bench::Body Broadcast(int inListeners) {
  return [=](benchmark::State& ioState) {
    Broadcaster broadcaster;
    std::deque<SummingListener> listeners(inListeners);
    for (auto& listener : listeners)
      broadcaster.AddListener(&listener);
    Time(ioState, inListeners, [&](const long& m) { broadcaster.BroadcastMessage(m); });
  };
}

bench::Body VirtualCalls(int inListeners) {
  return [=](benchmark::State& ioState) {
    std::deque<SummingReceiver> receivers(inListeners);
    std::vector<Receiver*> pointers;
    for (auto& receiver : receivers)
      pointers.push_back(&receiver);
    Time(ioState, inListeners, [&](const long& m) {
      for (Receiver* receiver : pointers) {
        try {
          receiver->Receive(m);
        } catch (...) {
          // What the broadcaster promises: one that throws does not keep the others from it.
        }
      }
    });
  };
}

bench::Body Signals2(int inListeners) {
  return [=](benchmark::State& ioState) {
    boost::signals2::signal<void(const long&)> signal;
    std::deque<SummingReceiver> receivers(inListeners);
    for (auto& receiver : receivers) {
      signal.connect([&receiver](const long& m) { receiver.Receive(m); });
    }
    Time(ioState, inListeners, [&](const long& m) { signal(m); });
  };
}

bench::Body QtSignals(int inListeners) {
  return [=](benchmark::State& ioState) {
    QtSender sender;
    std::deque<QtReceiver> receivers(inListeners);
    for (auto& receiver : receivers) {
      QObject::connect(&sender, &QtSender::Sent, &receiver, &QtReceiver::Receive,
                       Qt::DirectConnection);
    }
    Time(ioState, inListeners, [&](const long& m) { sender.Send(m); });
  };
}

double AllocationsOfADelivery(int inListeners) {
  Broadcaster broadcaster;
  std::deque<SummingListener> listeners(inListeners);
  for (auto& listener : listeners)
    broadcaster.AddListener(&listener);
  const long message = 1;
  return bench::AllocationsOf([&] { broadcaster.BroadcastMessage(message); });
}

}  // namespace

int main(int argc, char** argv) {
  using bench::RatioAtMost;
  const auto few = 10, many = 1000;
  return bench::Run("messaging", argc, argv,
                    {
                        {"10 listeners, beside virtual calls in try", "ns", RatioAtMost(3),
                         Broadcast(few), VirtualCalls(few)},
                        {"10 listeners, beside boost::signals2", "ns", RatioAtMost(0.25),
                         Broadcast(few), Signals2(few)},
                        {"10 listeners, beside Qt's direct connections", "ns", RatioAtMost(0.5),
                         Broadcast(few), QtSignals(few)},
                        {"1000 listeners, beside virtual calls in try", "ns", RatioAtMost(3),
                         Broadcast(many), VirtualCalls(many)},
                        {"1000 listeners, beside boost::signals2", "ns", RatioAtMost(0.25),
                         Broadcast(many), Signals2(many)},
                        {"1000 listeners, beside Qt's direct connections", "ns", RatioAtMost(0.5),
                         Broadcast(many), QtSignals(many)},
                    },
                    {
                        {"allocations of a message by reference to 10", "count",
                         bench::OursAtMost(0), AllocationsOfADelivery(few), std::nullopt},
                        {"allocations of a message by reference to 1000", "count",
                         bench::OursAtMost(0), AllocationsOfADelivery(many), std::nullopt},
                    });
}
