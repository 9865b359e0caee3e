#ifndef PATIENCE_H
#define PATIENCE_H

#include <QTest>

/// How long (ms) a test waits for what must happen but is promised no time: for as long as a busy
/// machine may take. The test library's own five seconds are for a machine that has nothing else to
/// do; what goes well is waited for no longer by either.
static constexpr int patience = 30000;

// The test library looks twice or three times at a condition that has come true, and fails where
// the looks differ. What a person sees comes and goes: to have seen it once is enough.

#undef QTRY_VERIFY2_WITH_TIMEOUT
#define QTRY_VERIFY2_WITH_TIMEOUT(condition, message, timeout)                                     \
    QVERIFY2(QTest::qWaitFor([&] { return bool(condition); }, (timeout)), (message))

#undef QTRY_VERIFY_WITH_TIMEOUT
#define QTRY_VERIFY_WITH_TIMEOUT(condition, timeout)                                               \
    QTRY_VERIFY2_WITH_TIMEOUT((condition), "not: " #condition, (timeout))

// To compare with something empty says more when it fails.
#undef QTRY_COMPARE_WITH_TIMEOUT
#define QTRY_COMPARE_WITH_TIMEOUT(actual, expected, timeout)                                       \
    do {                                                                                           \
        const auto isEqual = [&] {                                                                 \
            return (actual) == (expected); /* NOLINT(readability-container-size-empty) */          \
        };                                                                                         \
        if (!QTest::qWaitFor(isEqual, (timeout)))                                                  \
            QCOMPARE(actual, expected);                                                            \
    } while (false)

#undef QTRY_VERIFY
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT((condition), patience)

#undef QTRY_VERIFY2
#define QTRY_VERIFY2(condition, message) QTRY_VERIFY2_WITH_TIMEOUT((condition), (message), patience)

#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, patience)

#endif
