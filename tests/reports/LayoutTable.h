// Checks a report's layout against a table of its elements, and its pages for what must never be
// seen on paper.
//
//   const QList<ElementRow> kTable{
//       {"PageHeader", "Label1", {3047, 283, 4394, 355}, text("PREFEITURA")},
//       {"Detail", "Field7", {2906, 3047, 1275, 284}, column("VALOR"), "#,##0.00"}};
//   QCOMPARE(layoutDifferences(readLayout(Desenho(u"arX")), kTable), QString());
//
// Measures are twips. Every check gives what it found wrong, empty for nothing.
#pragma once

#include <QHash>
#include <QList>
#include <QRect>
#include <QSet>
#include <QString>
#include <QStringList>

#include "platform/reporting/Document.h"
#include "platform/reporting/Layout.h"
#include "platform/reporting/TextFit.h"

namespace quartela::test {

// What an element shows: a fixed text, a column, or nothing of its own.
struct Content {
  QString text;
  QString column;
};

inline Content text(const char* words) {
  return {QString::fromUtf8(words), {}};
}

inline Content column(const char* name) {
  return {{}, QString::fromLatin1(name)};
}

// One row of a table: a label, a field, a picture or a bar code at its place in its section.
struct ElementRow {
  const char* section;
  const char* element;
  QRect place;
  Content content = {};
  const char* format = "";
};

// A level line.
struct RuledLine {
  const char* section;
  int top;
  int width;
  int left = 0;
};

inline QString described(const QRect& place) {
  return QStringLiteral("%1,%2 %3x%4")
      .arg(place.x())
      .arg(place.y())
      .arg(place.width())
      .arg(place.height());
}

inline void addDifference(QStringList& problems, const QString& element, const QString& what,
                          const QString& found, const QString& expected) {
  if (found != expected) {
    problems
        << QStringLiteral("%1: %2 is \"%3\" instead of \"%4\"").arg(element, what, found, expected);
  }
}

inline void addDifferences(QStringList& problems, const ElementRow& row,
                           const reporting::ElementLayout& element) {
  const QString name = QString::fromLatin1(row.element);
  addDifference(problems, name, QStringLiteral("place"), described(element.place),
                described(row.place));
  addDifference(problems, name, QStringLiteral("text"), element.text, row.content.text);
  addDifference(problems, name, QStringLiteral("column"), element.column, row.content.column);
  addDifference(problems, name, QStringLiteral("format"), element.format,
                QString::fromUtf8(row.format));
}

// Elements of the table that the layout lacks, or has in another section, at another place, with
// another text, column or format.
inline QString layoutDifferences(const reporting::ReportLayout& layout,
                                 const QList<ElementRow>& table) {
  QHash<QString, const reporting::ElementLayout*> found;
  for (const reporting::SectionLayout& section : layout.sections) {
    for (const reporting::ElementLayout& element : section.elements) {
      found.insert(section.name + QLatin1Char('/') + element.name, &element);
    }
  }
  QStringList problems;
  for (const ElementRow& row : table) {
    const QString name =
        QString::fromLatin1(row.section) + QLatin1Char('/') + QString::fromLatin1(row.element);
    if (const reporting::ElementLayout* const element = found.value(name)) {
      addDifferences(problems, row, *element);
    } else {
      problems << QStringLiteral("%1 is missing").arg(name);
    }
  }
  return problems.join(QLatin1Char('\n'));
}

// Labels, fields, pictures, bar codes and sub-reports of the layout that the tables do not name.
inline QString unlistedElements(const reporting::ReportLayout& layout,
                                const QList<ElementRow>& table) {
  QSet<QString> listed;
  for (const ElementRow& row : table) {
    listed.insert(QString::fromLatin1(row.element));
  }
  QStringList unlisted;
  for (const reporting::SectionLayout& section : layout.sections) {
    for (const reporting::ElementLayout& element : section.elements) {
      const bool drawn = element.kind == reporting::ElementKind::Line ||
                         element.kind == reporting::ElementKind::Shape;
      if (!drawn && !listed.contains(element.name)) {
        unlisted << element.name;
      }
    }
  }
  return unlisted.join(QLatin1Char(' '));
}

// Lines of the table that the layout lacks; whatever bears their names.
inline QString missingLines(const reporting::ReportLayout& layout, const QList<RuledLine>& lines) {
  QSet<QString> found;
  for (const reporting::SectionLayout& section : layout.sections) {
    for (const reporting::ElementLayout& element : section.elements) {
      if (element.kind == reporting::ElementKind::Line && element.lineWeight > 0) {
        found.insert(section.name + QLatin1Char(' ') + described(element.place));
      }
    }
  }
  QStringList missing;
  for (const RuledLine& line : lines) {
    const QString wanted = QString::fromLatin1(line.section) + QLatin1Char(' ') +
                           described({line.left, line.top, line.width, 0});
    if (!found.contains(wanted)) {
      missing << wanted;
    }
  }
  return missing.join(QLatin1Char('\n'));
}

// Where the letters of an item stand: its lines, each as wide as it is, not its box.
inline QList<QRectF> linesOnPaper(const reporting::Page& page, const reporting::StoredItem& item) {
  const reporting::ItemStyle& style = page.document().style(item.style);
  const QString text = page.fittedText(item);
  if (style.kind != reporting::ItemKind::Text || text.trimmed().isEmpty()) {
    return {};
  }
  QStringList lines{QString()};
  for (const QChar letter : text) {
    if (reporting::endsLine(letter)) {
      lines << QString();
    } else {
      lines.last() += letter;
    }
  }
  const double high = style.face->lineHeight();
  const double spare = item.height - high * double(lines.size());
  const bool middle = style.verticalAlign == reporting::VerticalAlignment::Middle || spare < 0;
  const bool bottom = style.verticalAlign == reporting::VerticalAlignment::Bottom;
  double top = item.top + spare * (middle ? 0.5 : (bottom ? 1.0 : 0.0));
  QList<QRectF> places;
  for (const QString& line : lines) {
    const double width = style.face->width(line);
    const double free = item.width - width;
    const double share = style.align == reporting::Alignment::Right    ? 1.0
                         : style.align == reporting::Alignment::Center ? 0.5
                                                                       : 0.0;
    places << QRectF(item.left + free * share, top, width, high);
    top += high;
  }
  return places;
}

// Pairs of texts of a page whose letters touch each other. The elements of `overprint` are meant to
// stand on others. Line spacing may meet by a few twips; letters do not.
inline QString collisions(const reporting::Page& page, const QSet<QString>& overprint = {}) {
  constexpr double kSpacing = 10;
  struct Line {
    QString element;
    QRectF place;
    qsizetype item;
  };
  QList<Line> lines;
  const auto stored = page.stored();
  for (std::size_t at = 0; at < stored.size(); ++at) {
    const QString element = page.document().style(stored[at].style).element;
    if (!overprint.contains(element)) {
      for (const QRectF& place : linesOnPaper(page, stored[at])) {
        lines.append({element, place.adjusted(0, kSpacing, 0, -kSpacing), qsizetype(at)});
      }
    }
  }
  QStringList problems;
  for (qsizetype one = 0; one < lines.size(); ++one) {
    for (qsizetype other = one + 1; other < lines.size(); ++other) {
      if (lines[one].item != lines[other].item && lines[one].place.intersects(lines[other].place)) {
        problems << lines[one].element + QStringLiteral(" on ") + lines[other].element;
      }
    }
  }
  return problems.join(QLatin1Char('\n'));
}

// The elements of a page whose text was too long for its box.
inline QString cutTexts(const reporting::Page& page) {
  QStringList cut;
  for (const reporting::PlacedItem& item : page.items()) {
    if (item.text.endsWith(reporting::kCutSign)) {
      cut << item.element + QStringLiteral(": ") + item.text;
    }
  }
  return cut.join(QLatin1Char('\n'));
}

// Items that reach over the paper's edge.
inline QString offPaper(const reporting::Page& page) {
  QStringList outside;
  const QRect paper(QPoint(0, 0), page.size());
  for (const reporting::PlacedItem& item : page.items()) {
    if (!paper.contains(item.rect.topLeft()) || item.rect.x() + item.rect.width() > paper.width() ||
        item.rect.y() + item.rect.height() > paper.height()) {
      outside << item.element;
    }
  }
  return outside.join(QLatin1Char(' '));
}

}  // namespace quartela::test
