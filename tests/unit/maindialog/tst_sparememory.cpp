#include "Footprint.h"
#include "Patience.h"
#include "SpareMemory.h"

#include <QByteArray>
#include <QTest>

#include <vector>

namespace {

constexpr double megabytes = 64; // used for a moment
constexpr int blockSize = 64 * 1024;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool keepsFreed = true; // what is freed, to tell who uses it still
#else
constexpr bool keepsFreed = false;
#endif

/** Fills the memory with blocks and keeps a few bytes between them, as widgets and lists do that
 *  were made meanwhile: nothing of it is at the end of the heap. */
std::vector<QByteArray> useForAMoment()
{
    std::vector<QByteArray> blocks;
    std::vector<QByteArray> kept;
    for (int i = 0; i < megabytes * 1024 * 1024 / blockSize; ++i) {
        blocks.emplace_back(blockSize, 'x');
        kept.emplace_back(64, 'y');
    }
    return kept;
}

bool isGivenBack(double before)
{
    return keepsFreed || Footprint::now().memory - before < megabytes / 4;
}

} // namespace

class SpareMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatWasUsedForAMomentIsGivenBackAfterIt();
    void inALongRestItIsGivenBackAgainAndAgain();
};

void SpareMemoryTest::whatWasUsedForAMomentIsGivenBackAfterIt()
{
    SpareMemory memory;
    const double before = Footprint::now().memory;
    const std::vector<QByteArray> kept = useForAMoment();
    QVERIFY(!kept.empty());
    qInfo("%.1f MB before, %.1f MB after", before, Footprint::now().memory);
    memory.giveBackSoon();
    QVERIFY(Footprint::now().memory - before > megabytes / 2);
    QTRY_VERIFY_WITH_TIMEOUT(isGivenBack(before), 15000);
}

void SpareMemoryTest::inALongRestItIsGivenBackAgainAndAgain()
{
    using namespace std::chrono_literals;
    SpareMemory memory(3s); // longer than what is waited for after a call
    const double before = Footprint::now().memory;
    memory.giveBackSoon();
    for (int time = 0; time < 3; ++time) {
        const std::vector<QByteArray> kept = useForAMoment();
        QVERIFY(!kept.empty());
        QTRY_VERIFY_WITH_TIMEOUT(isGivenBack(before), 15000);
    }
}

QTEST_GUILESS_MAIN(SpareMemoryTest)
#include "tst_sparememory.moc"
