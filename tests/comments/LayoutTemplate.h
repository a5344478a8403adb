#pragma once

#include <QString>
#include <memory>
#include <utility>

#include "model/NamespaceDefs.h"
#include "model/PageLayout.h"
#include "model/Template.h"

namespace sv::test {

// A template that has page layouts and nothing else, for the pages the bar offers.
class LayoutTemplate : public Template {
 public:
  class Layout : public PageLayout {
   public:
    Layout(QString name, QString caption, QString nameSpaces)
        : mName(std::move(name)),
          mCaption(std::move(caption)),
          mNameSpaces(std::move(nameSpaces)) {}
    QString Name() const override { return mName; }
    bool Enabled() const override { return true; }
    void setEnabled(bool) override {}
    QString NameSpaces() const override { return mNameSpaces; }
    QString Caption() const override { return mCaption; }

   private:
    QString mName;
    QString mCaption;
    QString mNameSpaces;
  };

  LayoutTemplate(QString name, std::shared_ptr<sv::NamespaceDefs> sets, QString flags = {})
      : mName(std::move(name)), mSets(std::move(sets)), mFlags(std::move(flags)) {}

  void AddLayout(const QString& name, const QString& caption, const QString& nameSpaces) {
    mLayouts->Add(std::make_shared<Layout>(name, caption, nameSpaces), name);
  }

  QString Name() const override { return mName; }
  std::shared_ptr<KeyedCollection<std::shared_ptr<TOCDefinition>>> TOCDefinitions() const override {
    return nullptr;
  }
  std::shared_ptr<KeyedCollection<std::shared_ptr<TemplateVariable>>> Variables() const override {
    return nullptr;
  }
  std::shared_ptr<sv::NamespaceDefs> NameSpaces() const override { return mSets; }
  QString Features() const override { return {}; }
  std::shared_ptr<KeyedCollection<std::shared_ptr<PageLayout>>> PageLayouts() const override {
    return mLayouts;
  }
  QString Flags() const override { return mFlags; }

 private:
  QString mName;
  std::shared_ptr<sv::NamespaceDefs> mSets;
  QString mFlags;
  std::shared_ptr<KeyedCollection<std::shared_ptr<PageLayout>>> mLayouts =
      std::make_shared<KeyedCollection<std::shared_ptr<PageLayout>>>();
};

}  // namespace sv::test
