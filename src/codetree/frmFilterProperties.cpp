#include "codetree/frmFilterProperties.h"

#include <QRegularExpression>

#include "foundation/DumpValue.h"
#include "foundation/ErrorTrap.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "foundation/modMain.h"
#include "model/SVProject.h"

namespace sv {

frmFilterProperties::frmFilterProperties(QObject* parent) : QObject(parent) {
  ConfigureForCommonUI(this);
}

QString frmFilterProperties::DumpMembers() const {
  return DumpValues(
      {{"txtWildcard", mWildcard}, {"mRegExpMode", mRegExpMode}, {"Cancelled", mCancelled}});
}

void frmFilterProperties::setSVProject(const std::shared_ptr<SVProject>& project) {
  Trap(this, "SVProject", [&] { mRegExpMode = project && project->ExcludeFiltersRegExp(); });
}

void frmFilterProperties::setWildcard(const QString& value) {
  if (value == mWildcard) return;
  mWildcard = value;
  emit changed();
}

void frmFilterProperties::Show(QObject* owner) {
  Trap(this, "Show", [&] {
    mCancelled = false;
    mVisible = true;
    emit changed();
    Services::Dialog().ShowModal(this, owner);
  });
}

void frmFilterProperties::hide() {
  mVisible = false;
  emit changed();
}

void frmFilterProperties::userActivate() {
  Trap(this, "Form_Activate", [&] {
    Services::Tip().ShowTip(
        mRegExpMode ? QStringLiteral("FilterRegExp") : QStringLiteral("FilterWildcard"), this);
  });
}

void frmFilterProperties::userType(const QString& text) {
  setWildcard(text);
}

void frmFilterProperties::userClickOK() {
  Trap(this, "HeaderBar_OKClick", [&] {
    if (mRegExpMode && !QRegularExpression(mWildcard).isValid()) {
      Services::Message().ShowMessage(
          mWildcard + QStringLiteral("  is not a valid Regular Expression."), Mb::Exclamation,
          QStringLiteral("Invalid Regular Expression"));
      return;
    }
    mCancelled = false;
    hide();
  });
}

void frmFilterProperties::userClickCancel() {
  Trap(this, "HeaderBar_CancelClick", [&] {
    mCancelled = true;
    hide();
  });
}

void frmFilterProperties::userClose() {
  userClickCancel();
}

}  // namespace sv
