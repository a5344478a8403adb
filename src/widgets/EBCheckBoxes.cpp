#include "widgets/EBCheckBoxes.h"

#include <cmath>

#include "foundation/DumpValue.h"
#include "foundation/ErrorTrap.h"
#include "model/Error.h"
#include "ui/TextMeasure.h"
#include "ui/VisualTheme.h"

namespace sv {

namespace {

// The theme's explorer bar: the normal state of the item pane, its fill and its text.
const QString kThemeClass = QStringLiteral("EXPLORERBAR");
constexpr int kPartItemPane = 5;
constexpr int kStateNormal = 1;
constexpr int kPropFillColor = 3802;
constexpr int kPropTextColor = 3803;
// The check mark and the gap before the caption, in pixels.
constexpr int kCheckMarkWidth = 17;
// Hosted controls sit this far in from the pane's edge in the bar's themed style.
constexpr int kThemedIndentPixels = 3;
// The template's height: one line of the default font.
constexpr int kTemplateHeightTwips = 255;

int round(double value) {
  return static_cast<int>(std::lround(value));
}

}  // namespace

EBCheckBoxes::EBCheckBoxes(QObject* parent) : QObject(parent) {
  auto box = std::make_unique<CheckBox>();
  box->setIndex(0);
  box->setVisible(false);
  box->setHeight(kTemplateHeightTwips);
  CheckBoxes.push_back(std::move(box));
  mCheckBoxCaptions << QString();
}

EBCheckBoxes::~EBCheckBoxes() = default;

QString EBCheckBoxes::DumpMembers() const {
  std::vector<DumpVariant> boxes(CheckBoxes.size(), DumpVariant::Object("CheckBox"));
  return DumpValues({{"CheckBoxes", DumpVariant::List(std::move(boxes))},
                     {"mCheckBoxCaptions", DumpVariant::List(mCheckBoxCaptions)}});
}

CheckBox* EBCheckBoxes::Item(int index) const {
  if (index < 0 || index >= Count())
    Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Control array element does not exist"));
  return CheckBoxes[static_cast<std::size_t>(index)].get();
}

double EBCheckBoxes::scale(double value, int fromScale, int toScale, bool vertical) {
  auto twipsPerUnit = [vertical](int mode) -> double {
    switch (mode) {
      case Twips:
        return 1;
      case Points:
        return 20;
      case Pixels:
        return 15;
      case Characters:
        return vertical ? 120 : 240;
      case Inches:
        return 1440;
      case Millimetres:
        return 56.69286;
      case Centimetres:
        return 566.9286;
      default:
        Raise(ErrorNumber::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
    }
  };
  return value * twipsPerUnit(fromScale) / twipsPerUnit(toScale);
}

double EBCheckBoxes::ScaleX(double value, int fromScale, int toScale) {
  return scale(value, fromScale, toScale, false);
}

double EBCheckBoxes::ScaleY(double value, int fromScale, int toScale) {
  return scale(value, fromScale, toScale, true);
}

void EBCheckBoxes::SetupExplorerBar(ExplorerBar* control) {
  Trap(this, "SetupExplorerBar", [&] {
    if (!VisualThemeActive()) return;
    const auto fill = VisualThemeColor(kThemeClass, kPartItemPane, kStateNormal, kPropFillColor);
    if (fill) control->setBackColor(*fill);
  });
}

CheckBox* EBCheckBoxes::AddCheckbox(ExplorerBar* control, ExplorerBarItem* item,
                                    const QString& caption, const QString& tag,
                                    const QString& toolTipText) {
  return Trap(this, "AddCheckbox",
              [&]() -> CheckBox* {
                if (!control || !item) RaiseObjectRequired();
                mBar = control;
                ExplorerBarClient client = item->Client();
                if (client.IsFrame && client.BackColor != control->BackColor())
                  client.BackColor = control->BackColor();
                client.Border = false;

                const int index = Count();
                SV_TRAP_LOCAL(index);
                auto owned = std::make_unique<CheckBox>();
                CheckBox* box = owned.get();
                box->setIndex(index);
                box->setCaption(caption);
                box->setTag(tag);
                box->setToolTipText(toolTipText);
                box->setBackColor(control->BackColor());
                box->setFont(control->Font());
                if (control->ItemTextColor()) {
                  box->setForeColor(*control->ItemTextColor());
                } else if (const auto text = VisualThemeColor(kThemeClass, kPartItemPane,
                                                              kStateNormal, kPropTextColor)) {
                  box->setForeColor(*text);
                }
                CheckBoxes.push_back(std::move(owned));
                mCheckBoxCaptions << caption;
                connect(box, &CheckBox::Click, this, [this, index] { emit Click(index); });

                const int height = round(ScaleY(Item(0)->Height(), client.ScaleMode, Twips));
                const int top = client.Tag * height;
                box->setContainer(item->Key());
                const int indent =
                    control->Style() == 1
                        ? round(ScaleX(kThemedIndentPixels, Pixels, client.ScaleMode))
                        : 0;
                box->Move(indent, top, client.Width - indent, height);
                box->Refresh();
                box->setVisible(true);
                ++client.Tag;
                item->setClient(client);

                const int tabIndex =
                    (control->Tag().isEmpty() ? control->TabIndex() : control->Tag().toInt()) + 1;
                control->setTag(QString::number(tabIndex));
                box->setTabIndex(tabIndex);
                return box;
              },
              {{"Caption", caption}, {"Tag", tag}, {"ToolTipText", toolTipText}});
}

void EBCheckBoxes::ResizeToItems(int count, ExplorerBarItem* item) {
  Trap(this, "ResizeToItems",
       [&] {
         ExplorerBarClient client = item->Client();
         client.Height = count * Item(1)->Height();
         item->setClient(client);
         item->setHeight(round(ScaleY(client.Height, client.ScaleMode, Pixels)));
       },
       {{"Count", count}});
}

int EBCheckBoxes::scaleModeOf(const CheckBox* box) const {
  const ExplorerBarItem* item = mBar ? mBar->FindItem(box->Container()) : nullptr;
  return item ? item->Client().ScaleMode : Twips;
}

void EBCheckBoxes::ResizeCheckboxes(ExplorerBar* control) {
  Trap(this, "ResizeCheckboxes", [&] {
    const int parentScale = control->ParentScaleMode().value_or(Twips);
    const int available = round(ScaleX(control->Width(), parentScale, Pixels)) -
                          2 * (control->ClientMargin() + control->ItemIndent()) + 3;
    SV_TRAP_LOCAL(available);
    if (available < 1 || Count() < 2) return;
    mBar = control;
    for (int index = 1; index < Count(); ++index) {
      CheckBox* box = Item(index);
      const int width = round(ScaleX(available, Pixels, scaleModeOf(box)));
      box->Move(box->Left(), box->Top(), width);
      box->setCaption(FitTextByRect(box, mCheckBoxCaptions[index]));
    }
  });
}

QString EBCheckBoxes::FitTextByRect(const CheckBox* control, const QString& text) {
  return Trap(this, "FitTextByRect",
              [&] {
                const int width = round(ScaleX(control->Width(), scaleModeOf(control), Pixels));
                return FitText(text, width - kCheckMarkWidth, control->Font());
              },
              {{"Text", text}});
}

void EBCheckBoxes::Clear() {
  Trap(this, "Clear", [&] {
    CheckBoxes.resize(1);
    mCheckBoxCaptions = QStringList{mCheckBoxCaptions.value(0)};
  });
}

}  // namespace sv
