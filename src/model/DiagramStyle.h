#pragma once

#include "model/ModelTypes.h"

namespace sv {

class DiagramStyle {
 public:
  long StyleSource() const { return mStyleSource; }
  void setStyleSource(long value) { mStyleSource = value; }
  bool UseDiagramShapes() const { return mUseDiagramShapes; }
  void setUseDiagramShapes(bool value) { mUseDiagramShapes = value; }
  bool Bold() const { return mBold; }
  void setBold(bool value) { mBold = value; }
  long Border() const { return mBorder; }
  void setBorder(long value) { mBorder = value; }
  bool CenterCaptions() const { return mCenterCaptions; }
  void setCenterCaptions(bool value) { mCenterCaptions = value; }
  bool DropShadow() const { return mDropShadow; }
  void setDropShadow(bool value) { mDropShadow = value; }
  OleColor CollectionBorderColor() const { return mCollectionBorderColor; }
  void setCollectionBorderColor(OleColor value) { mCollectionBorderColor = value; }
  OleColor CollectionTextColor() const { return mCollectionTextColor; }
  void setCollectionTextColor(OleColor value) { mCollectionTextColor = value; }
  OleColor CollectionFillColor() const { return mCollectionFillColor; }
  void setCollectionFillColor(OleColor value) { mCollectionFillColor = value; }
  OleColor ObjectBorderColor() const { return mObjectBorderColor; }
  void setObjectBorderColor(OleColor value) { mObjectBorderColor = value; }
  OleColor ObjectTextColor() const { return mObjectTextColor; }
  void setObjectTextColor(OleColor value) { mObjectTextColor = value; }
  OleColor ObjectFillColor() const { return mObjectFillColor; }
  void setObjectFillColor(OleColor value) { mObjectFillColor = value; }

 private:
  long mStyleSource = 0;
  bool mUseDiagramShapes = true;
  bool mBold = false;
  long mBorder = 1;
  bool mCenterCaptions = true;
  bool mDropShadow = true;
  OleColor mCollectionBorderColor = 0x000000;
  OleColor mCollectionTextColor = 0x000000;
  OleColor mCollectionFillColor = 0xE1FFFF;
  OleColor mObjectBorderColor = 0x000000;
  OleColor mObjectTextColor = 0x000000;
  OleColor mObjectFillColor = 0xFFEFE1;
};

}  // namespace sv
