// Runs the message pump inside a test.
#pragma once

#include <functional>

namespace quor::test
{

// How long to wait for what should happen at once; generous, because a busy machine is no failure.
constexpr int DefaultDeadline = 10'000;

// Handles messages as the application does (pre-translation, dispatch, idle work) until the condition holds;
// returns whether it does. It is asked after every message. Gives up after the deadline in milliseconds, or
// when the message loop is asked to end.
bool PumpUntil(const std::function<bool()>& condition, int deadline = DefaultDeadline);

// Handles the messages that are there, and those that they cause.
void PumpPending();

} // namespace quor::test
