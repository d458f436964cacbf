// The two encodings of the text files that go in and out: UTF-8 and Windows-1252.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>
#include <optional>

namespace quartela {

enum class TextEncoding { Utf8, Windows1252 };

// Utf8 when all of `bytes` is well-formed UTF-8 (plain ASCII is), else Windows1252.
TextEncoding detectEncoding(QByteArrayView bytes);

// Any bytes have a text. The five bytes that Windows-1252 leaves open are the control characters of
// the same number; what is no UTF-8 becomes U+FFFD.
QString decodeText(QByteArrayView bytes, TextEncoding encoding);

// The exact bytes of `text`, its accents composed first for Windows-1252; nothing when that
// encoding lacks one of its characters.
std::optional<QByteArray> encodeText(QStringView text, TextEncoding encoding);

}  // namespace quartela
