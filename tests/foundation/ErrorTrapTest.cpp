#include "foundation/ErrorTrap.h"
#include "foundation/NamedModule.h"

#include "foundation/DumpValue.h"
#include "foundation/IgnoreErrors.h"
#include "foundation/MessageBox.h"
#include "foundation/ReportObjectRegistry.h"
#include "support/FakeServices.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace sv {
namespace {

// A report object that records each call as the host's would receive it.
class RecordingReport : public IErrorReport {
 public:
  struct Call {
    QStringList arguments;  // product, version, module, procedure, line, number, description
    QString variables;
  };

  void ErrorHandler(const QString& product, const QString& version, const QString& module,
                    const QString& procedure, long line, long number, const QString& description,
                    const QString& variables) override {
    calls.push_back({{product, version, module, procedure, QString::number(line),
                      QString::number(number), description},
                     variables});
    if (onReport) onReport();
  }
  QString Action() const override { return QStringLiteral("Continue"); }

  std::vector<Call> calls;
  std::function<void()> onReport;
};

// A small control with members, as the components are.
class ShelfView : public Dumpable {
 public:
  QString ModuleName() const override { return QStringLiteral("ShelfView"); }
  QString DumpMembers() const override {
    if (failMembers) Raise(ErrorNumber::TypeMismatch, "Type mismatch");
    return DumpValues({{"mHighlightCommentedItems", mHighlightCommentedItems},
                       {"mLoading", mLoading},
                       {"mSVProject", DumpVariant::Nothing()}});
  }

  int CountFriends(int limit, const QString& filter) {
    return Trap(this, "CountFriends",
                [&] {
                  int counted = 3;
                  SV_TRAP_LOCAL(counted);
                  const QString label = QStringLiteral("friends");
                  SV_TRAP_LOCAL(label);
                  if (limit > counted) return counted;
                  throwLine = __LINE__ + 1;
                  Raise(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
                },
                {{"Limit", limit}, {"Filter", filter}});
  }

  void Refresh() {
    trapLine = __LINE__ + 1;
    Trap(this, "Refresh", [] { throw std::runtime_error("vector too long"); });
  }

  bool mHighlightCommentedItems = true;
  bool mLoading = false;
  bool failMembers = false;
  long throwLine = 0;
  long trapLine = 0;
};

class ErrorTrapTest : public testing::Test {
 protected:
  void SetUp() override {
    ReportObjectRegistry::Register(ErrorReportClass, [this] { return report; });
    SetGlobalVariablesProvider([] {
      return std::vector<DumpArg>{{"mAppName", "Scrivara5"}, {"LastPath", "/home/ann/docs"}};
    });
  }
  void TearDown() override {
    ReportObjectRegistry::Unregister(ErrorReportClass);
    SetGlobalVariablesProvider(nullptr);
  }

  // The variables text with CR LF shown as "\n" and the globals, which vary by process, cut
  // out: they are checked on their own.
  static QString WithoutGlobals(const QString& variables) {
    QString text = variables;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const qsizetype from = text.indexOf(QStringLiteral("<GlobalVariables>\n")) + 18;
    const qsizetype to = text.indexOf(QStringLiteral("</GlobalVariables>"));
    return text.left(from) + QStringLiteral("...\n") + text.mid(to);
  }

  std::shared_ptr<RecordingReport> report = std::make_shared<RecordingReport>();
  test::FakeServices services;
  ShelfView view;
};

TEST_F(ErrorTrapTest, AFailureReachesTheReportObjectWithPlaceAndVariables) {
  EXPECT_EQ(view.CountFriends(5, "public"), 3);
  EXPECT_TRUE(report->calls.empty());

  EXPECT_EQ(view.CountFriends(2, "public"), 0);

  ASSERT_EQ(report->calls.size(), 1u);
  const RecordingReport::Call& call = report->calls.front();
  EXPECT_EQ(call.arguments,
            (QStringList{"SVControls2008", "0.1.0", "ShelfView", "CountFriends",
                         QString::number(view.throwLine), "9", "Subscript out of range"}));
  EXPECT_EQ(WithoutGlobals(call.variables),
            "<Variables>\n"
            "<LocalVariables>\n"
            "<counted>3</counted>\n"
            "<label>friends</label>\n"
            "</LocalVariables>\n"
            "<ModuleVariables>\n"
            "<mHighlightCommentedItems>True</mHighlightCommentedItems>\n"
            "<mLoading>False</mLoading>\n"
            "<mSVProject>{Nothing}</mSVProject>\n"
            "</ModuleVariables>\n"
            "<GlobalVariables>\n"
            "...\n"
            "</GlobalVariables>\n"
            "</Variables>\n"
            "<Parameters>\n"
            "<Limit>2</Limit>\n"
            "<Filter>public</Filter>\n"
            "</Parameters>\n");
  EXPECT_EQ(call.variables.count(QStringLiteral("\r\n")), call.variables.count(u'\n'));
  EXPECT_TRUE(call.variables.contains("<mDebugClient>False</mDebugClient>\r\n"));
  EXPECT_TRUE(call.variables.contains("<mComponentNames>{UnInitialised Array}</mComponentNames>"));
  EXPECT_TRUE(call.variables.contains(
      "<mAppName>Scrivara5</mAppName>\r\n<LastPath>/home/ann/docs</LastPath>\r\n"
      "</GlobalVariables>"));

  EXPECT_EQ(LastError().number, ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(LastError().line, view.throwLine);
  EXPECT_EQ(LastReportAction(), "Continue");
  EXPECT_EQ(services.message->Count(), 0);
}

TEST_F(ErrorTrapTest, OtherExceptionsGiveTheLineOfTheTrapAndNoneForEmptyDumps) {
  const NamedModule helpers("FilePath");
  const long trapLine = __LINE__ + 1;
  Trap(&helpers, "GetPath", [] { throw std::runtime_error("bad path"); });
  view.Refresh();

  ASSERT_EQ(report->calls.size(), 2u);
  EXPECT_EQ(report->calls[0].arguments.mid(2),
            (QStringList{"FilePath", "GetPath", QString::number(trapLine), "65535", "bad path"}));
  EXPECT_EQ(WithoutGlobals(report->calls[0].variables),
            "<Variables>\n<LocalVariables>\n{None}\n</LocalVariables>\n"
            "<ModuleVariables>\n{None}\n</ModuleVariables>\n"
            "<GlobalVariables>\n...\n</GlobalVariables>\n</Variables>\n"
            "<Parameters>\n{None}\n</Parameters>\n");
  EXPECT_EQ(report->calls[1].arguments[4], QString::number(view.trapLine));
}

TEST_F(ErrorTrapTest, WithoutAReportObjectTheFallbackBoxNamesThePlace) {
  ReportObjectRegistry::Unregister(ErrorReportClass);

  view.CountFriends(1, {});

  ASSERT_EQ(services.message->Count(), 1);
  const auto& box = services.message->Boxes().front();
  EXPECT_EQ(box.title, "Application Error");
  EXPECT_EQ(box.flags, Mb::Critical);
  EXPECT_EQ(box.text, QStringLiteral("SVControls2008 has encountered a problem. We are sorry for "
                                     "the inconvenience.\n"
                                     "\n"
                                     "Module: ShelfView\n"
                                     "Procedure: CountFriends\n"
                                     "Line Number: %1\n"
                                     "\n"
                                     "Subscript out of range (9)")
                          .arg(view.throwLine));
}

TEST_F(ErrorTrapTest, AFailureInsideTheReportDoesNotRecurse) {
  report->onReport = [this] {
    view.CountFriends(0, "again");
    throw std::runtime_error("report object failed");
  };
  view.CountFriends(1, "first");
  ASSERT_EQ(report->calls.size(), 1u);
  EXPECT_TRUE(report->calls[0].variables.contains("<Filter>first</Filter>"));
  EXPECT_EQ(LastError().description, "Subscript out of range");

  // The trap is usable again once the failed report is over.
  report->onReport = nullptr;
  view.CountFriends(1, "later");
  EXPECT_EQ(report->calls.size(), 2u);
}

TEST_F(ErrorTrapTest, AFailingMemberDumpIsSwallowed) {
  view.failMembers = true;
  view.CountFriends(1, {});
  ASSERT_EQ(report->calls.size(), 1u);
  EXPECT_EQ(report->calls[0].arguments[6], "Subscript out of range");
  EXPECT_TRUE(report->calls[0].variables.contains(
      "<ModuleVariables>\r\n{Error 13 formatting for output}\r\n</ModuleVariables>"));
}

TEST_F(ErrorTrapTest, AnAbsentOrFailingFactoryMeansNoReportObject) {
  EXPECT_NE(ReportObjectRegistry::Create("corvaerror.ERROR"), nullptr);
  EXPECT_EQ(ReportObjectRegistry::Create("CorvaError.Missing"), nullptr);

  ReportObjectRegistry::Register(ErrorReportClass, []() -> std::shared_ptr<IErrorReport> {
    Raise(429, "ActiveX component can't create object");
  });
  view.CountFriends(1, {});
  EXPECT_EQ(services.message->Count(), 1);
  EXPECT_TRUE(services.message->Last().startsWith("Application Error|16|SVControls2008"));
}

TEST_F(ErrorTrapTest, IgnoredFailuresAreAnswersAndLeaveNoTrace) {
  const auto missing = IgnoreErrors([]() -> int { Raise(ErrorNumber::SubscriptOutOfRange, "x"); });
  EXPECT_FALSE(missing.has_value());
  EXPECT_EQ(IgnoreErrors([] { return 4; }), 4);
  EXPECT_TRUE(IgnoreErrors([] {}));

  // Locals named inside an ignored step do not reach the report of a later failure.
  Trap(&view, "Load", [] {
    IgnoreErrors([] {
      const int probe = 1;
      SV_TRAP_LOCAL(probe);
      Raise(ErrorNumber::SubscriptOutOfRange, "absent key");
    });
    const int step = 2;
    SV_TRAP_LOCAL(step);
    throw std::logic_error("broken");
  });
  ASSERT_EQ(report->calls.size(), 1u);
  EXPECT_TRUE(report->calls[0].variables.contains(
      "<LocalVariables>\r\n<step>2</step>\r\n</LocalVariables>"));

  // Only the system's own error is an expected answer.
  EXPECT_THROW(IgnoreErrors([] { throw std::logic_error("bug"); }), std::logic_error);
}

TEST_F(ErrorTrapTest, AnInnerTrapReportsItsOwnFailureAndTheOuterCallGoesOn) {
  const int result = Trap(&view, "Outer", [this] {
    const int outerLocal = 1;
    SV_TRAP_LOCAL(outerLocal);
    return view.CountFriends(1, "inner") + 10;
  });
  EXPECT_EQ(result, 10);
  ASSERT_EQ(report->calls.size(), 1u);
  EXPECT_EQ(report->calls[0].arguments[3], "CountFriends");
  EXPECT_FALSE(report->calls[0].variables.contains("outerLocal"));
}

}  // namespace
}  // namespace sv
