#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "foundation/Dumpable.h"

namespace sv {

class SVProject;

// Asks for one member filter pattern: a wildcard, or a regular expression when the project
// filters by regular expressions. OK keeps the dialog open until a regular expression
// compiles. The form stays loaded after it is hidden: the caller reads Cancelled and Wildcard.
class frmFilterProperties : public QObject, public Dumpable {
  Q_OBJECT

 public:
  explicit frmFilterProperties(QObject* parent = nullptr);

  QString ModuleName() const override { return QStringLiteral("frmFilterProperties"); }
  QString DumpMembers() const override;

  // Reads the project's filter mode.
  void setSVProject(const std::shared_ptr<SVProject>& project);
  bool RegExpMode() const { return mRegExpMode; }
  void setRegExpMode(bool value) { mRegExpMode = value; }

  // The text of txtWildcard.
  const QString& Wildcard() const { return mWildcard; }
  void setWildcard(const QString& value);
  bool Cancelled() const { return mCancelled; }
  bool Visible() const { return mVisible; }

  // Shows the form modally through the dialog service.
  void Show(QObject* owner = nullptr);

  // What a person does: the window becomes active, text is typed, a button is pressed, the
  // window's own close box is clicked (which counts as Cancel).
  void userActivate();
  void userType(const QString& text);
  void userClickOK();
  void userClickCancel();
  void userClose();

 signals:
  // For renderers: the text or the visibility changed.
  void changed();

 private:
  void hide();

  QString mWildcard;
  bool mRegExpMode = false;
  bool mCancelled = false;
  bool mVisible = false;
};

}  // namespace sv
