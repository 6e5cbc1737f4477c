#pragma once

#include "protocol/Outcome.h"

#include <gtest/gtest.h>

inline void expectOutcome(const Outcome& outcome, Outcome::Kind kind, const QString& part)
{
    EXPECT_TRUE(outcome.kind() == kind && outcome.text().contains(part)) << outcome.detail();
}

/// Done, with nothing to tell.
inline void expectDone(const Outcome& outcome)
{
    EXPECT_TRUE(outcome.isDone() && outcome.text().isEmpty()) << outcome.detail();
}

/// Done, with a notice that holds `part`.
inline void expectNotice(const Outcome& outcome, const QByteArray& part)
{
    expectOutcome(outcome, Outcome::Kind::Done, QString::fromUtf8(part));
}

/// Failed, with a text that holds `part`.
inline void expectFailure(const Outcome& outcome, const QByteArray& part)
{
    expectOutcome(outcome, Outcome::Kind::Failed, QString::fromUtf8(part));
}
