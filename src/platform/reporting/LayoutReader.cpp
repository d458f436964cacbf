#include "platform/reporting/LayoutReader.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QSet>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <utility>

#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

constexpr double kLargestFont = 200;

[[noreturn]] void fail(const QString& place, const QString& words) {
  throw RuntimeError::withDescription(
      ErrorNumber::InvalidProcedureCall,
      QStringLiteral("O desenho do relatório tem um erro [%1]: %2.").arg(place, words));
}

// One object of the file. Every key that is asked for counts as known; finish() refuses the others,
// so that a misspelt key is never passed over.
class Node {
 public:
  Node(const QJsonValue& value, QString place) : place_(std::move(place)) {
    if (!value.isObject()) {
      fail(place_, QStringLiteral("esperava-se um objeto"));
    }
    object_ = value.toObject();
  }

  const QString& place() const { return place_; }
  void setPlace(const QString& place) { place_ = place; }
  bool has(QLatin1String key) const { return object_.contains(key); }

  QString text(QLatin1String key, const QString& otherwise = {}) {
    const QJsonValue value = take(key);
    if (value.isUndefined()) {
      return otherwise;
    }
    require(value.isString(), key, QStringLiteral("um texto"));
    return value.toString();
  }

  QString requiredText(QLatin1String key) {
    const QString value = text(key);
    require(!value.isEmpty(), key, QStringLiteral("um texto que não seja vazio"));
    return value;
  }

  bool boolean(QLatin1String key, bool otherwise) {
    const QJsonValue value = take(key);
    require(value.isUndefined() || value.isBool(), key, QStringLiteral("true ou false"));
    return value.toBool(otherwise);
  }

  int measure(QLatin1String key, std::optional<int> otherwise, int least = 0) {
    const QJsonValue value = take(key);
    if (value.isUndefined() && otherwise) {
      return *otherwise;
    }
    const double number = value.toDouble();
    const bool within = number >= least && number <= kLargestMeasure;
    require(value.isDouble() && within && number == std::floor(number), key,
            QStringLiteral("um número inteiro de %1 a %2").arg(least).arg(kLargestMeasure));
    return static_cast<int>(number);
  }

  double size(QLatin1String key, double otherwise) {
    const QJsonValue value = take(key);
    require(value.isUndefined() || value.isDouble(), key, QStringLiteral("um número"));
    const double number = value.toDouble(otherwise);
    require(number >= 1 && number <= kLargestFont, key, QStringLiteral("um número de 1 a 200"));
    return number;
  }

  QColor color(QLatin1String key, const QColor& otherwise) {
    const QJsonValue value = take(key);
    if (value.isUndefined()) {
      return otherwise;
    }
    const QColor color(value.toString());
    require(color.isValid(), key, QStringLiteral("uma cor como \"#c0c0c0\""));
    return color;
  }

  template <typename Choice>
  Choice choice(QLatin1String key, std::optional<Choice> otherwise,
                std::initializer_list<std::pair<const char*, Choice>> words) {
    const QJsonValue value = take(key);
    if (value.isUndefined() && otherwise) {
      return *otherwise;
    }
    QStringList known;
    for (const auto& [word, meaning] : words) {
      if (value.toString() == QLatin1String(word)) {
        return meaning;
      }
      known << QLatin1String(word);
    }
    require(false, key, QStringLiteral("uma destas palavras: ") + known.join(QLatin1String(", ")));
    return words.begin()->second;
  }

  std::optional<Node> object(QLatin1String key) {
    const QJsonValue value = take(key);
    return value.isUndefined() ? std::nullopt
                               : std::make_optional<Node>(value, place_ + QLatin1Char('/') + key);
  }

  QJsonArray array(QLatin1String key) {
    const QJsonValue value = take(key);
    require(value.isUndefined() || value.isArray(), key, QStringLiteral("uma lista"));
    return value.toArray();
  }

  void finish() const {
    for (auto entry = object_.begin(); entry != object_.end(); ++entry) {
      if (!known_.contains(entry.key())) {
        fail(place_, QStringLiteral("a chave \"%1\" não é conhecida").arg(entry.key()));
      }
    }
  }

 private:
  QJsonValue take(QLatin1String key) {
    known_.insert(key);
    return object_.value(key);
  }
  void require(bool holds, QLatin1String key, const QString& wanted) const {
    if (!holds) {
      fail(place_, QStringLiteral("\"%1\" deve ser %2").arg(key, wanted));
    }
  }

  QJsonObject object_;
  QString place_;
  QSet<QString> known_;
};

QLatin1String key(const char* name) {
  return QLatin1String(name);
}

FontSpec readFont(Node& owner, const FontSpec& inherited) {
  FontSpec font = inherited;
  if (std::optional<Node> node = owner.object(key("font"))) {
    font.family = node->text(key("family"), font.family);
    font.points = node->size(key("size"), font.points);
    font.bold = node->boolean(key("bold"), font.bold);
    font.italic = node->boolean(key("italic"), font.italic);
    font.underline = node->boolean(key("underline"), font.underline);
    node->finish();
  }
  return font;
}

ElementKind readElementKind(Node& node) {
  return node.choice<ElementKind>(key("kind"), std::nullopt,
                                  {{"Label", ElementKind::Label},
                                   {"Field", ElementKind::Field},
                                   {"Line", ElementKind::Line},
                                   {"Shape", ElementKind::Shape},
                                   {"Image", ElementKind::Image},
                                   {"BarCode", ElementKind::BarCode},
                                   {"SubReport", ElementKind::SubReport},
                                   {"PageBreak", ElementKind::PageBreak}});
}

QMargins readMargins(Node& owner, QLatin1String name, const QMargins& usual) {
  std::optional<Node> node = owner.object(name);
  if (!node) {
    return usual;
  }
  const QMargins margins(
      node->measure(key("left"), usual.left()), node->measure(key("top"), usual.top()),
      node->measure(key("right"), usual.right()), node->measure(key("bottom"), usual.bottom()));
  node->finish();
  return margins;
}

// An element may reach into the page's left margin, up to the paper's edge.
QRect readPlace(Node& node, ElementKind kind, int margin) {
  // A page break is a height in its section and nothing else.
  const std::optional<int> unneeded =
      kind == ElementKind::PageBreak ? std::optional<int>(0) : std::nullopt;
  const int left = node.measure(key("left"), unneeded, -margin);
  const int top = node.measure(key("top"), std::nullopt);
  const int width = node.measure(key("width"), unneeded);
  return {left, top, width, node.measure(key("height"), unneeded)};
}

void readTextLook(Node& node, ElementLayout& element) {
  element.align = node.choice<Alignment>(
      key("align"), Alignment::Left,
      {{"left", Alignment::Left}, {"center", Alignment::Center}, {"right", Alignment::Right}});
  element.verticalAlign =
      node.choice<VerticalAlignment>(key("verticalAlign"), VerticalAlignment::Top,
                                     {{"top", VerticalAlignment::Top},
                                      {"middle", VerticalAlignment::Middle},
                                      {"bottom", VerticalAlignment::Bottom}});
  element.wordWrap = node.boolean(key("wordWrap"), false);
  element.canGrow = node.boolean(key("canGrow"), false);
  element.canShrink = node.boolean(key("canShrink"), false);
  element.smallest = node.size(key("smallest"), element.font.points);
  if (element.smallest > element.font.points) {
    fail(node.place(), QStringLiteral("\"smallest\" não pode ser maior que a letra"));
  }
  element.room = readMargins(node, key("room"), {});
  element.color = node.color(key("color"), Qt::black);
  element.backColor = node.color(key("backColor"), {});
}

void readContent(Node& node, ElementLayout& element) {
  element.text = node.text(key("text"));
  element.column = node.text(key("column"));
  element.optional = node.boolean(key("optional"), false);
  element.format = node.text(key("format"));
  element.shows = node.choice<Shows>(key("shows"), Shows::Text,
                                     {{"text", Shows::Text},
                                      {"pageNumber", Shows::PageNumber},
                                      {"pageTotal", Shows::PageTotal},
                                      {"title", Shows::Title}});
  element.summary = node.choice<Summary>(
      key("summary"), Summary::None,
      {{"none", Summary::None}, {"sum", Summary::Sum}, {"count", Summary::Count}});
  element.over = node.text(key("over"));
  if (element.summary == Summary::Sum && element.column.isEmpty()) {
    fail(node.place(), QStringLiteral("uma soma precisa de \"column\""));
  }
}

void readLine(Node& node, ElementLayout& element) {
  element.lineStyle = node.choice<LineStyle>(
      key("lineStyle"), LineStyle::Solid,
      {{"solid", LineStyle::Solid}, {"dash", LineStyle::Dash}, {"dot", LineStyle::Dot}});
  element.lineWeight = node.measure(key("lineWeight"), element.lineWeight);
  element.stretch = node.boolean(key("stretch"), false);
}

// A path that is neither absolute nor compiled in stands beside the layout's own file.
QString resolvedImage(const QString& image, const QString& file) {
  return image.isEmpty() || image.startsWith(QLatin1Char(':')) || QFileInfo(image).isAbsolute()
             ? image
             : QFileInfo(file).path() + QLatin1Char('/') + image;
}

ElementLayout readElement(const QJsonValue& value, const QString& section, const FontSpec& font,
                          const ReportLayout& layout, const QString& file) {
  Node node(value, section);
  ElementLayout element;
  element.name = node.requiredText(key("name"));
  node.setPlace(section + QLatin1Char('/') + element.name);
  element.kind = readElementKind(node);
  element.place = readPlace(node, element.kind, layout.margins.left());
  element.visible = node.boolean(key("visible"), true);
  element.font = readFont(node, font);
  readTextLook(node, element);
  readContent(node, element);
  readLine(node, element);
  element.image = resolvedImage(node.text(key("image")), file);
  if (element.kind == ElementKind::Image && element.image.isEmpty()) {
    fail(node.place(), QStringLiteral("uma figura precisa de \"image\""));
  }
  node.finish();
  return element;
}

SectionKind readSectionKind(Node& node) {
  return node.choice<SectionKind>(key("kind"), std::nullopt,
                                  {{"ReportHeader", SectionKind::ReportHeader},
                                   {"PageHeader", SectionKind::PageHeader},
                                   {"GroupHeader", SectionKind::GroupHeader},
                                   {"Detail", SectionKind::Detail},
                                   {"GroupFooter", SectionKind::GroupFooter},
                                   {"PageFooter", SectionKind::PageFooter},
                                   {"ReportFooter", SectionKind::ReportFooter}});
}

void readSectionLook(Node& node, SectionLayout& section) {
  section.height = node.measure(key("height"), std::nullopt);
  section.canGrow = node.boolean(key("canGrow"), true);
  section.canShrink = node.boolean(key("canShrink"), false);
  section.keepTogether = node.boolean(key("keepTogether"), true);
  section.visible = node.boolean(key("visible"), true);
  section.repeatOnPage = node.boolean(key("repeatOnPage"), false);
  section.newPage = node.choice<NewPage>(key("newPage"), NewPage::None,
                                         {{"none", NewPage::None},
                                          {"before", NewPage::Before},
                                          {"after", NewPage::After},
                                          {"both", NewPage::Both}});
  section.backColor = node.color(key("backColor"), {});
}

SectionLayout readSection(const QJsonValue& value, const ReportLayout& layout,
                          const QString& file) {
  Node node(value, file);
  SectionLayout section;
  section.kind = readSectionKind(node);
  section.name = node.text(key("name"), value.toObject().value(key("kind")).toString());
  node.setPlace(file + QStringLiteral(": ") + section.name);
  readSectionLook(node, section);
  section.group = node.text(key("group"));
  section.column = node.text(key("column"));
  const bool grouped =
      section.kind == SectionKind::GroupHeader || section.kind == SectionKind::GroupFooter;
  if (grouped != !section.group.isEmpty()) {
    fail(node.place(),
         QStringLiteral("\"group\" é das seções GroupHeader e GroupFooter, e só delas"));
  }
  const FontSpec font = readFont(node, layout.font);
  for (const QJsonValue& element : node.array(key("elements"))) {
    section.elements.push_back(readElement(element, node.place(), font, layout, file));
  }
  node.finish();
  return section;
}

void readPage(Node& root, ReportLayout& layout) {
  if (std::optional<Node> page = root.object(key("page"))) {
    layout.paper = QSize(page->measure(key("width"), layout.paper.width(), 1),
                         page->measure(key("height"), layout.paper.height(), 1));
    layout.margins = readMargins(*page, key("margins"), layout.margins);
    page->finish();
  }
  layout.printWidth = root.measure(key("printWidth"), layout.printWidth, 1);
}

void checkNames(const ReportLayout& layout, const QString& file) {
  QSet<QString> sections;
  QSet<QString> elements;
  for (const SectionLayout& section : layout.sections) {
    if (sections.contains(section.name.toLower())) {
      fail(file, QStringLiteral("há duas seções \"%1\"").arg(section.name));
    }
    sections.insert(section.name.toLower());
    for (const ElementLayout& element : section.elements) {
      if (elements.contains(element.name.toLower())) {
        fail(file, QStringLiteral("há dois elementos \"%1\"").arg(element.name));
      }
      elements.insert(element.name.toLower());
    }
  }
}

QSet<QString> checkSingleKinds(const ReportLayout& layout, const QString& file) {
  QSet<QString> groups;
  QSet<int> kinds;
  for (const SectionLayout& section : layout.sections) {
    const bool repeatable =
        section.kind == SectionKind::GroupHeader || section.kind == SectionKind::GroupFooter;
    if (!repeatable && kinds.contains(static_cast<int>(section.kind))) {
      fail(file, QStringLiteral("a seção \"%1\" é a segunda do seu tipo").arg(section.name));
    }
    kinds.insert(static_cast<int>(section.kind));
    if (section.kind == SectionKind::GroupHeader) {
      groups.insert(section.group);
    }
  }
  return groups;
}

// A total is known only behind its rows.
bool standsBeforeItsRows(const SectionLayout& section, const ElementLayout& element) {
  return element.summary != Summary::None &&
         (section.kind == SectionKind::ReportHeader || section.kind == SectionKind::GroupHeader);
}

void checkGroups(const ReportLayout& layout, const QSet<QString>& groups, const QString& file) {
  for (const SectionLayout& section : layout.sections) {
    if (!section.group.isEmpty() && !groups.contains(section.group)) {
      fail(file, QStringLiteral("o grupo \"%1\" não tem GroupHeader").arg(section.group));
    }
    for (const ElementLayout& element : section.elements) {
      const QString place = file + QStringLiteral(": ") + element.name;
      if (!element.over.isEmpty() && !groups.contains(element.over)) {
        fail(place, QStringLiteral("o grupo \"%1\" não existe").arg(element.over));
      }
      if (standsBeforeItsRows(section, element)) {
        fail(place, QStringLiteral("um total não pode estar antes das suas linhas"));
      }
    }
  }
}

QJsonValue parseJson(const QByteArray& json, const QString& file) {
  QJsonParseError error{};
  const QJsonDocument document = QJsonDocument::fromJson(json, &error);
  if (error.error != QJsonParseError::NoError) {
    const auto line = json.left(error.offset).count('\n') + 1;
    fail(file, QStringLiteral("linha %1: %2").arg(line).arg(error.errorString()));
  }
  return document.isObject() ? QJsonValue(document.object()) : QJsonValue();
}

}  // namespace

ReportLayout parseLayout(const QByteArray& json, const QString& file) {
  Node root(parseJson(json, file), file);
  ReportLayout layout;
  layout.name = root.requiredText(key("name"));
  layout.title = root.text(key("title"), layout.name);
  readPage(root, layout);
  layout.font = readFont(root, layout.font);
  layout.emptyData =
      root.choice<EmptyData>(key("emptyData"), EmptyData::Headings,
                             {{"headings", EmptyData::Headings}, {"nothing", EmptyData::Nothing}});
  for (const QJsonValue& section : root.array(key("sections"))) {
    layout.sections.push_back(readSection(section, layout, file));
  }
  root.finish();
  checkNames(layout, file);
  checkGroups(layout, checkSingleKinds(layout, file), file);
  return layout;
}

ReportLayout readLayout(const QString& file) {
  QFile source(file);
  if (!source.exists()) {
    throw RuntimeError(ErrorNumber::FileNotFound, file);
  }
  if (!source.open(QIODevice::ReadOnly)) {
    throw RuntimeError(ErrorNumber::PathFileAccess, file);
  }
  return parseLayout(source.readAll(), file);
}

}  // namespace quartela::reporting
