#include "platform/controls/AviPlayer.h"

#include <QFile>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtEndian>

#include "platform/controls/AviFile.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"
#include "tests/support/Folders.h"
#include "tests/support/TestMain.h"

using quartela::AviFile;
using quartela::AviPlayer;
using quartela::RuntimeError;

namespace {

QByteArray little(quint32 number, int bytes) {
  QByteArray text(bytes, '\0');
  for (int i = 0; i < bytes; ++i) {
    text[i] = static_cast<char>((number >> (8 * i)) & 0xFF);
  }
  return text;
}

QByteArray chunk(const QByteArray& id, QByteArray contents) {
  const auto length = static_cast<quint32>(contents.size());
  if (contents.size() % 2 != 0) {
    contents.append('\0');
  }
  return id + little(length, 4) + contents;
}

struct Track {
  int width = 3;
  int height = 2;
  int bits = 8;
  quint32 compression = 0;
  quint32 microseconds = 40000;
  QByteArray kind = "vids";
};

const QList<QRgb> kPalette{qRgb(0, 0, 0), qRgb(255, 0, 0), qRgb(0, 255, 0), qRgb(0, 0, 255)};

QByteArray format(const Track& track) {
  QByteArray head = little(40, 4) + little(static_cast<quint32>(track.width), 4) +
                    little(static_cast<quint32>(track.height), 4) + little(1, 2) +
                    little(static_cast<quint32>(track.bits), 2) + little(track.compression, 4) +
                    QByteArray(12, '\0') + little(static_cast<quint32>(kPalette.size()), 4) +
                    little(0, 4);
  for (const QRgb colour : kPalette) {
    head += track.bits == 8 ? little(colour & 0xFFFFFF, 4) : QByteArray();
  }
  return head;
}

QByteArray trackList(const Track& track) {
  return chunk("LIST", "strl" + chunk("strh", track.kind + QByteArray(52, '\0')) +
                           chunk("strf", format(track)));
}

QByteArray avi(const Track& track, const QList<QByteArray>& frames, const QByteArray& id = "00db",
               const QByteArray& tracksBefore = {}) {
  QByteArray pictures("movi");
  for (const QByteArray& frame : frames) {
    pictures += chunk(id, frame);
  }
  const QByteArray head = chunk("avih", little(track.microseconds, 4) + QByteArray(52, '\0'));
  return chunk("RIFF", "AVI " + chunk("LIST", "hdrl" + head + tracksBefore + trackList(track)) +
                           chunk("LIST", pictures));
}

// Rows from the bottom, each of three pixels and a filling byte.
const QByteArray kPlain("\1\2\3\0\3\2\1\0", 8);

QImage shown(const AviFile& file, int last = 0) {
  QImage canvas = file.canvas();
  for (int i = 0; i <= last; ++i) {
    file.draw(i, canvas);
  }
  return canvas;
}

// Each pixel as its place in the palette, rows from the top, "?" for any other colour.
QString pixels(const QImage& image) {
  QStringList rows;
  for (int y = 0; y < image.height(); ++y) {
    QString row;
    for (int x = 0; x < image.width(); ++x) {
      const auto place = kPalette.indexOf(image.pixel(x, y));
      row += place < 0 ? QStringLiteral("?") : QString::number(place);
    }
    rows << row;
  }
  return rows.join('/');
}

int errorOf(const QByteArray& bytes) {
  return quartela::test::errorOf([&bytes] { AviFile::parse(bytes); });
}

QByteArray delivered() {
  return quartela::test::contentOf(
      quartela::test::inSource(QStringLiteral("resources/delivery/FILEDELR.avi")));
}

}  // namespace

class AviPlayer_test : public QObject {
  Q_OBJECT

 private slots:
  void drawsFrames_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const Track plain;
    Track topDown;
    topDown.height = -2;
    Track runs;
    runs.compression = 1;
    Track deep;
    deep.bits = 24;
    Track deeper;
    deeper.bits = 32;
    const QByteArray red("\0\0\xFF", 3);
    const QByteArray blue("\xFF\0\0", 3);
    const QByteArray fill(3, '\0');
    Track sound;
    sound.kind = "auds";
    QTest::newRow("8 bits, lowest row first") << avi(plain, {kPlain}) << "321/123";
    QTest::newRow("8 bits, highest row first") << avi(topDown, {kPlain}) << "123/321";
    QTest::newRow("24 bits") << avi(deep, {red + red + blue + fill + blue + blue + red + fill})
                             << "331/113";
    QTest::newRow("32 bits") << avi(deeper, {(red + '\0').repeated(5) + blue + '\0'}) << "113/111";
    QTest::newRow("runs") << avi(runs, {QByteArray("\3\1\0\0\1\2\2\3\0\1", 10)}, "00dc")
                          << "233/111";
    QTest::newRow("runs, single pixels")
        << avi(runs, {QByteArray("\0\3\1\2\3\0\0\0\3\2\0\1", 12)}, "00dc") << "222/123";
    QTest::newRow("runs, jump") << avi(runs, {QByteArray("\0\2\1\1\2\3\0\1", 8)}, "00dc")
                                << "033/000";
    QTest::newRow("runs past the row's end fall away")
        << avi(runs, {QByteArray("\xFF\1\0\0\xFF\2\0\1", 8)}, "00dc") << "222/111";
    QTest::newRow("runs past the last row")
        << avi(runs, {QByteArray("\0\2\0\5\3\1\0\1", 8)}, "00dc") << "000/000";
    QTest::newRow("runs without an end") << avi(runs, {QByteArray("\3\1", 2)}, "00dc") << "000/111";
    QTest::newRow("runs cut in a jump")
        << avi(runs, {QByteArray("\3\1\0\2\1", 5)}, "00dc") << "000/111";
    QTest::newRow("a colour outside the palette is black")
        << avi(plain, {QByteArray("\1\x7F\3\0\3\xFF\1\0", 8)}) << "301/103";
    QTest::newRow("a frame too short shows nothing") << avi(plain, {kPlain.left(7)}) << "000/000";
    QTest::newRow("the picture track behind a sound track")
        << avi(plain, {kPlain}, "01db", trackList(sound)) << "321/123";
  }
  void drawsFrames() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, expected);
    QCOMPARE(pixels(shown(AviFile::parse(bytes))), expected);
  }

  void aFrameDrawsOverTheOneBefore() {
    Track runs;
    runs.compression = 1;
    const QByteArray first("\3\1\0\0\3\2\0\1", 8);
    const QByteArray onePixel("\0\2\1\0\1\3\0\1", 8);
    const AviFile file = AviFile::parse(avi(runs, {first, onePixel, QByteArray()}, "00dc"));
    QCOMPARE(file.frameCount(), 3);
    QCOMPARE(pixels(shown(file, 0)), "222/111");
    QCOMPARE(pixels(shown(file, 1)), "222/131");
    QCOMPARE(pixels(shown(file, 2)), "222/131");
  }

  void drawingOutsideChangesNothing() {
    const AviFile file = AviFile::parse(avi({}, {kPlain}));
    QImage canvas = file.canvas();
    file.draw(-1, canvas);
    file.draw(1, canvas);
    QCOMPARE(pixels(canvas), "000/000");
    QImage other(1, 1, QImage::Format_RGB32);
    other.fill(kPalette[2]);
    file.draw(0, other);
    QCOMPARE(pixels(other), "2");
  }

  void refuses_data() {
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = avi({}, {kPlain});
    Track codec;
    codec.compression = 0x64697663;
    Track fourBits;
    fourBits.bits = 4;
    Track deepRuns;
    deepRuns.bits = 24;
    deepRuns.compression = 1;
    Track wide;
    wide.width = 5000;
    Track none;
    none.width = 0;
    Track flat;
    flat.height = 0;
    Track lowest;
    lowest.height = std::numeric_limits<int>::min();
    Track sound;
    sound.kind = "auds";
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("four bytes") << QByteArray("RIFF");
    QTest::newRow("another file") << QByteArray("GIF89a and so on, long enough");
    QTest::newRow("another RIFF") << QByteArray(good).replace("AVI ", "WAVE");
    QTest::newRow("another codec") << avi(codec, {kPlain});
    QTest::newRow("4 bits") << avi(fourBits, {kPlain});
    QTest::newRow("runs of 24 bits") << avi(deepRuns, {kPlain});
    QTest::newRow("too wide") << avi(wide, {kPlain});
    QTest::newRow("no width") << avi(none, {kPlain});
    QTest::newRow("no height") << avi(flat, {kPlain});
    QTest::newRow("the lowest height") << avi(lowest, {kPlain});
    QTest::newRow("no frames") << avi({}, {});
    QTest::newRow("frames of no track") << avi({}, {kPlain}, "07db");
    QTest::newRow("sound alone") << avi(sound, {kPlain});
    QByteArray nested = chunk("LIST", "movi");
    for (int i = 0; i < 50; ++i) {
      nested = chunk("LIST", "movi" + nested);
    }
    QTest::newRow("lists without end") << chunk("RIFF", "AVI " + nested);
  }
  void refuses() {
    QFETCH(const QByteArray, bytes);
    QCOMPARE(errorOf(bytes), 481);
  }

  void everyCutIsRefused() {
    const QByteArray good = avi({}, {kPlain});
    for (qsizetype length = 0; length < good.size(); ++length) {
      QCOMPARE(errorOf(good.left(length)), 481);
    }
    QCOMPARE(errorOf(good), 0);
  }

  // The sanitizers watch that nothing is read outside the file.
  void mutationsAreRefusedOrDrawn() {
    const QByteArray good = delivered();
    QVERIFY(!good.isEmpty());
    const QByteArray small = avi({}, {kPlain, kPlain});
    Track runs;
    runs.compression = 1;
    const QByteArray coded =
        avi(runs, {QByteArray("\3\1\0\0\0\3\1\2\3\0\0\2\1\1\2\3\0\1", 18)}, "00dc");
    QRandomGenerator random(20141121);
    int refused = 0;
    int drawn = 0;
    for (int round = 0; round < 4000; ++round) {
      // The large file's head is where its structure stands.
      QByteArray bytes = round % 8 == 0 ? good : (round % 2 == 0 ? small : coded);
      const int reach = static_cast<int>(std::min<qsizetype>(bytes.size(), 400));
      for (int change = random.bounded(1, 6); change > 0; --change) {
        bytes[random.bounded(reach)] = static_cast<char>(random.bounded(256));
      }
      if (random.bounded(4) == 0) {
        bytes.truncate(random.bounded(static_cast<int>(bytes.size())));
      }
      try {
        const AviFile file = AviFile::parse(bytes);
        shown(file, std::min(file.frameCount(), 4) - 1);
        ++drawn;
      } catch (const RuntimeError& error) {
        QCOMPARE(error.number(), 481);
        ++refused;
      }
    }
    QVERIFY(refused > 500);
    QVERIFY(drawn > 500);
  }

  void openRaises53ForNoFileAnd481ForNoAnimation() {
    QTemporaryDir folder;
    AviPlayer player;
    QVERIFY(errorOfOpening(player, folder.filePath("none.avi")) == 53);
    QFile garbage(folder.filePath("garbage.avi"));
    QVERIFY(garbage.open(QIODevice::WriteOnly) && garbage.write("garbage") == 7);
    garbage.close();
    QVERIFY(errorOfOpening(player, garbage.fileName()) == 481);
    QVERIFY(!player.isOpen());
    player.play();
    QVERIFY(!player.isPlaying());
    QCOMPARE(player.sizeHint(), QSize(0, 0));
  }

  void aFailedOpeningEmptiesThePlayer() {
    QTemporaryDir folder;
    AviPlayer player;
    player.open(write(folder, avi({}, {kPlain})));
    player.play();
    QVERIFY(errorOfOpening(player, folder.filePath("none.avi")) == 53);
    QVERIFY(!player.isOpen());
    QVERIFY(!player.isPlaying());
    QVERIFY(player.picture().isNull());
  }

  void playsAllFramesAndBeginsAgain() {
    QTemporaryDir folder;
    const QByteArray other(8, '\2');
    Track quick;
    quick.microseconds = 1000;
    AviPlayer player;
    player.open(write(folder, avi(quick, {kPlain, other, kPlain})));
    QCOMPARE(player.frame(), 0);
    QCOMPARE(player.frameCount(), 3);
    QCOMPARE(player.sizeHint(), QSize(3, 2));
    QVERIFY(!player.isPlaying());
    QSignalSpy frames(&player, &AviPlayer::frameShown);
    player.play();
    QTRY_VERIFY(frames.size() >= 4);
    player.stop();
    QCOMPARE(frames[0][0].toInt(), 1);
    QCOMPARE(frames[1][0].toInt(), 2);
    QCOMPARE(frames[2][0].toInt(), 0);
    QCOMPARE(frames[3][0].toInt(), 1);
    QVERIFY(!player.isPlaying());
  }

  void paintsItsPictureInTheMiddle() {
    QTemporaryDir folder;
    AviPlayer player;
    player.open(write(folder, avi({}, {QByteArray(8, '\1')})));
    player.resize(9, 8);
    const QImage image = player.grab().toImage();
    QCOMPARE(image.pixel(4, 4), kPalette[1]);
    QVERIFY(image.pixel(0, 0) != kPalette[1]);
    QVERIFY(image.pixel(8, 7) != kPalette[1]);
  }

  void theDeliveredAnimationPlays() {
    const AviFile file = AviFile::parse(delivered());
    QCOMPARE(file.frameCount(), 20);
    QCOMPARE(file.frameMilliseconds(), 15);
    QVERIFY(shown(file, 0) != shown(file, 8));
    QVERIFY(shown(file, 8) != shown(file, 19));
  }

 private:
  static int errorOfOpening(AviPlayer& player, const QString& path) {
    try {
      player.open(path);
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }

  static QString write(const QTemporaryDir& folder, const QByteArray& bytes) {
    QFile file(folder.filePath("animation.avi"));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                : QString();
  }
};

QUARTELA_TEST_MAIN(AviPlayer_test)
#include "AviPlayer_test.moc"
