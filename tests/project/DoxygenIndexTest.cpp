#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include "model/Error.h"
#include "project/doxygen/DoxygenCompound.h"
#include "project/doxygen/DoxygenIndex.h"

namespace sv {
namespace {

QString SampleXml() {
  return QStringLiteral(SV_BINARY_DIR) + QStringLiteral("/samples/geometry/xml");
}

QString Flags(const DoxygenMember& m) {
  QString flags;
  const std::pair<bool, const char*> marks[] = {{m.isStatic, "static"},
                                                {m.isConst, "const"},
                                                {m.isPureVirtual, "pure"},
                                                {m.isVirtual && !m.isPureVirtual, "virtual"},
                                                {m.isExplicit, "explicit"},
                                                {m.isConstructor && m.isDeclared, "ctor"},
                                                {m.isConstructor && !m.isDeclared, "implicit-ctor"},
                                                {m.isDestructor, "dtor"},
                                                {m.isOverloaded, "overloaded"},
                                                {m.isStrong, "strong"}};
  for (const auto& [on, word] : marks)
    if (on) flags += QLatin1Char(' ') + QLatin1String(word);
  return flags;
}

// The code tree below a scope as indented lines: scopes by kind and qualified name, members by
// access, kind, qualified name (shortened to what follows the scope) and flags.
void Print(const DoxygenIndex& index, int id, int depth, QStringList& out) {
  const QString pad(depth * 2, QLatin1Char(' '));
  const DoxygenIndexCompound& c = index.Compound(id);
  const DoxygenCompound& details = index.Details(id);
  const QString scopeName = index.QualifiedName(id);
  QString line = pad + KindWord(c.kind) + QLatin1Char(' ') + scopeName;
  if (details.Access() != DoxygenAccess::None)
    line += QLatin1Char(' ') + AccessWord(details.Access());
  for (const DoxygenBase& base : details.Bases())
    line += QStringLiteral(" : ") + AccessWord(base.access) + QLatin1Char(' ') + base.name;
  out << line;
  for (const DoxygenMember& m : details.Members()) {
    out << pad + QStringLiteral("  ") + AccessWord(m.access) + QLatin1Char(' ') + KindWord(m.kind) +
               QLatin1Char(' ') + m.qualifiedName.mid(scopeName.size()) + Flags(m);
    for (const DoxygenMember& v : m.values)
      out << pad + QStringLiteral("    ") + AccessWord(v.access) + QStringLiteral(" enumvalue ") +
                 v.qualifiedName.mid(scopeName.size()) +
                 (v.initializer.isEmpty() ? QString() : QLatin1Char(' ') + v.initializer);
  }
  for (const std::int32_t child : index.Children(id)) Print(index, child, depth + 1, out);
}

QString Tree(const DoxygenIndex& index) {
  QStringList lines;
  Print(index, DoxygenIndex::kRoot, 0, lines);
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

// A copy of the sample XML in a temporary folder, for tests that spoil a file.
class SampleCopy {
 public:
  SampleCopy() {
    const QDir from(SampleXml());
    for (const QString& name : from.entryList(QDir::Files))
      QFile::copy(from.filePath(name), mDir.filePath(name));
  }
  QString Folder() const { return mDir.path(); }
  void Write(const QString& name, const QByteArray& text) const {
    QFile file(mDir.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text);
  }
  void Remove(const QString& name) const { QFile::remove(mDir.filePath(name)); }

 private:
  QTemporaryDir mDir;
};

// The error a statement throws, as "number: description".
template <class F>
std::string ErrorOf(F&& statement) {
  try {
    statement();
  } catch (const Error& e) {
    return (QString::number(e.Number()) + QStringLiteral(": ") + e.Description()).toStdString();
  }
  return "no error";
}

TEST(DoxygenIndexTest, ReadsTheSampleLibraryAsATree) {
  const DoxygenIndex index(SampleXml(), QStringLiteral("Geo"));
  EXPECT_EQ(Tree(index).toStdString(), R"(project Geo
  PUBLIC define ~GEOMETRY_VERSION_MAJOR
  PUBLIC function ~geometry_version
  namespace Geo~geometry
    PUBLIC enum ~Unit strong
      PUBLIC enumvalue ~Unit~Millimetre
      PUBLIC enumvalue ~Unit~Centimetre
      PUBLIC enumvalue ~Unit~Inch = 25
    PUBLIC typedef ~Length
    PUBLIC function ~distance
    PUBLIC function ~operator+
    PUBLIC function ~operator*(const Point&,double) overloaded
    PUBLIC function ~operator*(double,const Point&) overloaded
    PUBLIC function ~convert
    PUBLIC function ~millimetresPer
    struct Geo~geometry~Point PUBLIC
      PUBLIC function ~Point implicit-ctor
      PUBLIC variable ~x
      PUBLIC variable ~y
    namespace Geo~geometry~io
      PUBLIC function ~toText
      class Geo~geometry~io~SvgWriter PUBLIC
        PUBLIC enum ~Style strong
          PUBLIC enumvalue ~Style~Outline
          PUBLIC enumvalue ~Style~Filled
        PRIVATE variable ~mOut
        PRIVATE variable ~mStyle
        PRIVATE variable ~mWritten
        PUBLIC function ~SvgWriter explicit ctor
        PUBLIC function ~write(const shapes::Circle&) overloaded
        PUBLIC function ~write(const shapes::Polygon&) overloaded
        PUBLIC function ~written const
        PRIVATE function ~styleAttribute const
    namespace Geo~geometry~shapes
      class Geo~geometry~shapes~Circle PUBLIC : PUBLIC geometry::shapes::Shape
        PRIVATE variable ~mRadius
        PUBLIC function ~Circle() ctor overloaded
        PUBLIC function ~Circle(Length) explicit ctor overloaded
        PUBLIC function ~Circle(const Point&,Length) ctor overloaded
        PUBLIC function ~area const virtual
        PUBLIC function ~perimeter const virtual
        PUBLIC function ~name const virtual
        PUBLIC function ~radius const
        PUBLIC function ~setRadius
        class Geo~geometry~shapes~Circle~Builder PUBLIC
          PUBLIC function ~Builder implicit-ctor
          PRIVATE variable ~mCentre
          PRIVATE variable ~mRadius
          PUBLIC function ~centre(const Point&) overloaded
          PUBLIC function ~centre(Length,Length) overloaded
          PUBLIC function ~radius
          PUBLIC function ~build const
      class Geo~geometry~shapes~Polygon PUBLIC : PUBLIC geometry::shapes::Shape
        PUBLIC function ~Polygon implicit-ctor
        PUBLIC enum ~Winding
          PUBLIC enumvalue ~Winding~Clockwise
          PUBLIC enumvalue ~Winding~CounterClockwise
        PUBLIC typedef ~Corners
        PRIVATE variable ~mCorners
        PUBLIC function ~area const virtual
        PUBLIC function ~perimeter const virtual
        PUBLIC function ~addCorner(const Point&) overloaded
        PUBLIC function ~addCorner(Length,Length) overloaded
        PUBLIC function ~corners const
        PUBLIC function ~winding const
        PUBLIC function ~regular static
        PROTECTED function ~signedArea const
      class Geo~geometry~shapes~Shape PUBLIC
        PRIVATE variable ~mOrigin
        PRIVATE variable ~mId
        PUBLIC function ~~Shape virtual dtor
        PUBLIC function ~area const pure
        PUBLIC function ~perimeter const pure
        PUBLIC function ~name const virtual
        PUBLIC function ~moveBy(Length,Length) overloaded
        PUBLIC function ~moveBy(const Point&) overloaded
        PUBLIC function ~origin const
        PUBLIC function ~id const
        PROTECTED function ~Shape() ctor overloaded
        PROTECTED function ~Shape(const Point&) explicit ctor overloaded
        PROTECTED function ~originChanged virtual
        PRIVATE function ~nextId static
)");
}

TEST(DoxygenIndexTest, QualifiedNamesAreUniqueAndLeadBackToTheirItems) {
  const DoxygenIndex index(SampleXml(), QStringLiteral("Geo"));
  QSet<QString> seen;
  int members = 0;
  const std::function<void(int)> visit = [&](int id) {
    const QString scope = index.QualifiedName(id);
    EXPECT_FALSE(seen.contains(scope)) << scope.toStdString();
    seen.insert(scope);
    EXPECT_EQ(index.FindQualified(scope), id) << scope.toStdString();
    const DoxygenCompound& details = index.Details(id);
    for (const DoxygenMember& m : details.Members()) {
      for (const DoxygenMember* item : {&m}) {
        ++members;
        EXPECT_FALSE(seen.contains(item->qualifiedName)) << item->qualifiedName.toStdString();
        seen.insert(item->qualifiedName);
        QString rest;
        EXPECT_EQ(index.FindScopeOf(item->qualifiedName, &rest), id);
        EXPECT_EQ(details.FindMember(item->qualifiedName), item)
            << item->qualifiedName.toStdString();
      }
      for (const DoxygenMember& v : m.values) EXPECT_EQ(details.FindMember(v.qualifiedName), &v);
    }
    for (const std::int32_t child : index.Children(id)) visit(child);
  };
  visit(DoxygenIndex::kRoot);
  EXPECT_GT(members, 60);

  // A destructor's "~" and an overload's arguments stay part of the member's name.
  QString rest;
  const int shape = index.FindScopeOf(QStringLiteral("Geo~geometry~shapes~Shape~~Shape"), &rest);
  EXPECT_EQ(index.QualifiedName(shape), QStringLiteral("Geo~geometry~shapes~Shape"));
  EXPECT_EQ(rest, QStringLiteral("~Shape"));
  const DoxygenMember* moveBy = index.Details(shape).FindMember(
      QStringLiteral("Geo~geometry~shapes~Shape~moveBy(const Point&)"));
  ASSERT_NE(moveBy, nullptr);
  EXPECT_EQ(moveBy->argsString, QStringLiteral("(const Point &delta)"));
  EXPECT_EQ(index.FindQualified(QStringLiteral("Geo~geometry~nowhere")), -1);
  EXPECT_EQ(index.FindQualified(QStringLiteral("Other~geometry")), -1);
  EXPECT_EQ(index.FindByName("geometry::shapes::Circle::Builder"),
            index.FindQualified(QStringLiteral("Geo~geometry~shapes~Circle~Builder")));

  // The same files read again give the same names.
  const DoxygenIndex again(SampleXml(), QStringLiteral("Geo"));
  EXPECT_EQ(Tree(again), Tree(index));
}

TEST(DoxygenIndexTest, ReadsACompoundFileOnlyWhenItsDetailsAreAsked) {
  SampleCopy copy;
  copy.Write(
      QStringLiteral("classgeometry_1_1shapes_1_1Circle.xml"),
      "<?xml version='1.0'?>\n<doxygen>\n  <compounddef id=\"x\">\n    <name>Circle</nam>\n");
  const DoxygenIndex index(copy.Folder(), QStringLiteral("Geo"));
  EXPECT_EQ(index.FilesRead(), 0);
  const int circle = index.FindByName("geometry::shapes::Circle");
  const int builder = index.FindByName("geometry::shapes::Circle::Builder");
  EXPECT_EQ(index.Compound(builder).parent, circle);
  EXPECT_FALSE(index.IsLoaded(circle));

  EXPECT_EQ(index.Details(builder).Members().size(), 7u);
  EXPECT_EQ(index.FilesRead(), 1);
  EXPECT_TRUE(index.IsLoaded(builder));
  EXPECT_FALSE(index.IsLoaded(circle));
  EXPECT_EQ(ErrorOf([&] { index.Details(circle); }),
            QStringLiteral("321: %1/classgeometry_1_1shapes_1_1Circle.xml: line 4, column 19: "
                           "Start-end tags mismatch")
                .arg(copy.Folder())
                .toStdString());
  EXPECT_FALSE(index.IsLoaded(circle));

  copy.Remove(QStringLiteral("classgeometry_1_1shapes_1_1Polygon.xml"));
  const int polygon = index.FindByName("geometry::shapes::Polygon");
  EXPECT_EQ(ErrorOf([&] { index.Details(polygon); }),
            QStringLiteral("53: Cannot open the Doxygen XML file "
                           "%1/classgeometry_1_1shapes_1_1Polygon.xml: No such file or directory")
                .arg(copy.Folder())
                .toStdString());
}

TEST(DoxygenIndexTest, AMissingOrMalformedIndexIsAnErrorNamingFileLineAndColumn) {
  SampleCopy copy;
  const QString index = copy.Folder() + QStringLiteral("/index.xml");
  copy.Write(QStringLiteral("index.xml"),
             "<?xml version='1.0'?>\n<doxygenindex>\n  <compound refid=\"a\" kind=\"class\">"
             "<name>A&lt;</name>\n  <compound>\n</doxygenindex>\n");
  EXPECT_EQ(ErrorOf([&] { DoxygenIndex(copy.Folder(), QStringLiteral("Geo")); }),
            QStringLiteral("321: %1: line 5, column 3: Start-end tags mismatch")
                .arg(index)
                .toStdString());

  copy.Write(QStringLiteral("index.xml"), "<?xml version='1.0'?>\n\n  <doxygen/>\n");
  EXPECT_EQ(ErrorOf([&] { DoxygenIndex(copy.Folder(), QStringLiteral("Geo")); }),
            QStringLiteral("321: %1: line 3, column 3: Expected the element <doxygenindex> but "
                           "found <doxygen>")
                .arg(index)
                .toStdString());

  copy.Write(QStringLiteral("index.xml"),
             "<doxygenindex><compound kind=\"class\"/></doxygenindex>");
  EXPECT_EQ(ErrorOf([&] { DoxygenIndex(copy.Folder(), QStringLiteral("Geo")); }),
            QStringLiteral("321: %1: line 1, column 15: A compound has no refid")
                .arg(index)
                .toStdString());

  copy.Write(QStringLiteral("index.xml"),
             "<doxygenindex><compound refid=\"../../etc/passwd\" kind=\"class\">"
             "<name>Evil</name></compound></doxygenindex>");
  const DoxygenIndex evil(copy.Folder(), QStringLiteral("Geo"));
  EXPECT_EQ(ErrorOf([&] { evil.Details(evil.FindByName("Evil")); }),
            QStringLiteral("321: %1: the refid \"../../etc/passwd\" is not a file name")
                .arg(index)
                .toStdString());

  copy.Remove(QStringLiteral("index.xml"));
  EXPECT_EQ(ErrorOf([&] { DoxygenIndex(copy.Folder(), QStringLiteral("Geo")); }),
            QStringLiteral("53: Cannot open the Doxygen XML file %1: No such file or directory")
                .arg(index)
                .toStdString());
}

TEST(DoxygenIndexTest, ScopesThatTheIndexLeavesOutAreMadeUp) {
  SampleCopy copy;
  copy.Write(
      QStringLiteral("index.xml"),
      "<doxygenindex>"
      "<compound refid=\"a\" kind=\"struct\"><name>std::hash&lt; ns::Key&lt;int&gt; &gt;</name>"
      "<member refid=\"a_1x\" kind=\"function\"><name>operator()</name></member></compound>"
      "<compound refid=\"b\" kind=\"class\"><name>QHash&lt; K, std::less&lt; K &gt; "
      "&gt;::iterator</name></compound>"
      "<compound refid=\"f\" kind=\"file\"><name>x.h</name></compound>"
      "</doxygenindex>");
  const DoxygenIndex index(copy.Folder(), QStringLiteral("R"));
  QStringList lines;
  const std::function<void(int, int)> print = [&](int id, int depth) {
    const DoxygenIndexCompound& c = index.Compound(id);
    lines << QString(depth * 2, QLatin1Char(' ')) + KindWord(c.kind) + QLatin1Char(' ') +
                 index.QualifiedName(id) +
                 (id != DoxygenIndex::kRoot && c.refid.empty() ? QStringLiteral(" (made up)")
                                                               : QString());
    for (const std::int32_t child : index.Children(id)) print(child, depth + 1);
  };
  print(DoxygenIndex::kRoot, 0);
  EXPECT_EQ(lines.join(QLatin1Char('\n')).toStdString(),
            "project R\n"
            "  namespace R~std (made up)\n"
            "    struct R~std~hash< ns::Key<int> >\n"
            "  namespace R~QHash< K, std::less< K > > (made up)\n"
            "    class R~QHash< K, std::less< K > >~iterator");
  ASSERT_EQ(index.Others().size(), 1u);
  EXPECT_EQ(index.Compound(index.Others()[0]).name, "x.h");
  const int hash = index.FindByName("std::hash< ns::Key<int> >");
  ASSERT_EQ(index.Members(hash).size(), 1u);
  EXPECT_EQ(index.Members(hash)[0].name, "operator()");
  EXPECT_EQ(index.Members(hash)[0].kind, DoxygenMemberKind::Function);
}

}  // namespace
}  // namespace sv
