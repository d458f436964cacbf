#include "platform/files/TextEncoding.h"

#include <QStringConverter>
#include <QVarLengthArray>
#include <algorithm>
#include <array>

namespace quartela {
namespace {

constexpr unsigned kFirst = 0x80;

// The characters of the bytes 0x80 to 0x9F; all others have the number of their byte.
constexpr std::array<char16_t, 32> kCharacters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned kBehind = kFirst + kCharacters.size();

QString decode1252(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
    const auto number = static_cast<unsigned char>(byte);
    const bool isMapped = number >= kFirst && number < kBehind;
    return QChar(isMapped ? kCharacters[number - kFirst] : char16_t{number});
  });
  return text;
}

std::optional<char> byteOf(char16_t character) {
  if (character < kFirst || (character >= kBehind && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto found = std::find(kCharacters.begin(), kCharacters.end(), character);
  if (found == kCharacters.end()) {
    return std::nullopt;
  }
  return static_cast<char>(kFirst + static_cast<unsigned>(found - kCharacters.begin()));
}

std::optional<QByteArray> encode1252(QStringView text) {
  const QString composed = text.toString().normalized(QString::NormalizationForm_C);
  QByteArray bytes;
  bytes.reserve(composed.size());
  for (const QChar character : composed) {
    const auto byte = byteOf(character.unicode());
    if (!byte) {
      return std::nullopt;
    }
    bytes.append(*byte);
  }
  return bytes;
}

}  // namespace

TextEncoding detectEncoding(QByteArrayView bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QVarLengthArray<char16_t, 1024> text(decoder.requiredSpace(bytes.size()));
  decoder.appendToBuffer(reinterpret_cast<QChar*>(text.data()), bytes);
  return decoder.hasError() ? TextEncoding::Windows1252 : TextEncoding::Utf8;
}

QString decodeText(QByteArrayView bytes, TextEncoding encoding) {
  return encoding == TextEncoding::Utf8 ? QString::fromUtf8(bytes) : decode1252(bytes);
}

std::optional<QByteArray> encodeText(QStringView text, TextEncoding encoding) {
  return encoding == TextEncoding::Utf8 ? std::optional(text.toUtf8()) : encode1252(text);
}

}  // namespace quartela
