#pragma once

namespace sv {

class CommentOptions {
 public:
  bool ExcludeEditorBrowsable() const { return mExcludeEditorBrowsable; }
  void setExcludeEditorBrowsable(bool value) { mExcludeEditorBrowsable = value; }
  bool UseOverloadSummaryForMasterSummary() const { return mUseOverloadSummary; }
  void setUseOverloadSummaryForMasterSummary(bool value) { mUseOverloadSummary = value; }
  bool DrillCommentFiles() const { return mDrillCommentFiles; }
  void setDrillCommentFiles(bool value) { mDrillCommentFiles = value; }
  bool UseCommentFiles() const { return mUseCommentFiles; }
  void setUseCommentFiles(bool value) { mUseCommentFiles = value; }

 private:
  bool mExcludeEditorBrowsable = false;
  bool mUseOverloadSummary = false;
  bool mDrillCommentFiles = false;
  bool mUseCommentFiles = true;
};

}  // namespace sv
