// SPDX-License-Identifier: MIT
#include "dock_room.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>
#include <algorithm>

#include "fields.h"
#include "item_list.h"

namespace vatro {

namespace {

/// The height of large letters, in lines of the window's text.
constexpr int kLines = 3;
constexpr int kFewestLines = 2;
/// Pixels between the list and the room beside it.
constexpr int kGap = 6;
/// Of the width that neither the list nor the room needs, the room takes one part in this many.
constexpr int kShareOfRest = 3;

int BarOf(const ItemList& list) {
    return list.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
}

}  // namespace

DockRoom::DockRoom(QWidget* parent) : QFrame(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    setVisible(false);
}

QStringList DockRoom::Names() const {
    return forms_.split(u' ', Qt::SkipEmptyParts);
}

bool DockRoom::Has(const QWidget& guest) const {
    return std::any_of(berths_.begin(), berths_.end(), [&](const Berth& berth) { return berth.guest == &guest; });
}

void DockRoom::Take(QWidget& guest) {
    auto* frame = new QFrame(this);
    frame->setAccessibleName(guest.windowTitle().simplified());
    frame->setFrameShape(beside_.isEmpty() ? StyledPanel : NoFrame);
    auto* inside = new QHBoxLayout(frame);
    inside->setContentsMargins(0, 0, 0, 0);
    const qsizetype order = Names().indexOf(guest.objectName());
    const auto after = std::find_if(berths_.cbegin(), berths_.cend(), [&](const Berth& berth) {
        return berth.guest != nullptr && Names().indexOf(berth.guest->objectName()) > order;
    });
    const auto place = static_cast<int>(after - berths_.cbegin());
    berths_.insert(place, {&guest, frame});
    qobject_cast<QHBoxLayout*>(layout())->insertWidget(place, frame, 1);
    guest.setParent(frame, Qt::Widget);
    inside->addWidget(&guest);
    for (FittedText* text : guest.findChildren<FittedText*>()) text->SetRow(this);
    for (ItemList* list : guest.findChildren<ItemList*>()) list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    guest.installEventFilter(this);
    parentWidget()->installEventFilter(this);
    FollowGuests();
}

void DockRoom::Release(QWidget& guest) {
    const auto found = std::find_if(berths_.begin(), berths_.end(), [&](const Berth& berth) { return berth.guest == &guest; });
    if (found == berths_.end()) return;
    guest.removeEventFilter(this);
    for (FittedText* text : guest.findChildren<FittedText*>()) text->SetRow(nullptr);
    for (ItemList* list : guest.findChildren<ItemList*>()) {
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        list->FitRows(0, 0);
    }
    guest.setParent(nullptr);
    delete found->frame;
    berths_.erase(found);
    FollowGuests();
}

void DockRoom::ReleaseAll() {
    while (!berths_.isEmpty()) {
        if (QWidget* guest = berths_.constFirst().guest)
            Release(*guest);
        else
            delete berths_.takeFirst().frame;
    }
}

void DockRoom::FollowGuests() {
    bool any = false;
    for (const Berth& berth : berths_) {
        const bool shown = berth.guest != nullptr && !berth.guest->isHidden();
        berth.frame->setVisible(shown);
        any = any || shown;
    }
    setVisible(any);
    FitWidth();
}

void DockRoom::FitWidth() {
    if (beside_.isEmpty() || isHidden()) return;
    auto* own = findChild<ItemList*>();
    if (own == nullptr) return;
    layout()->setContentsMargins(kGap, 0, 0, 0);
    const int wanted = own->WidthFor(columns_) + BarOf(*own);
    const int rest = parentWidget()->width() - WantedWidth();
    const int width = qMax(wanted + (rest > 0 ? rest / kShareOfRest : rest), own->WidthFor(least_));
    setFixedWidth(kGap + width);
    own->FitRows(width - BarOf(*own), columns_);
}

int DockRoom::WantedWidth() const {
    const auto* list = beside_.isEmpty() ? nullptr : parentWidget()->findChild<ItemList*>(beside_);
    if (list == nullptr) return 0;
    const QMargins margins = parentWidget()->layout()->contentsMargins();
    const int alone = margins.left() + list->WidthFor(listColumns_) + BarOf(*list) + margins.right();
    const auto* own = findChild<ItemList*>();
    return own == nullptr || isHidden() ? alone : alone + kGap + own->WidthFor(columns_) + BarOf(*own);
}

QSize DockRoom::sizeHint() const {
    if (!beside_.isEmpty()) return QFrame::sizeHint();
    return {fontMetrics().averageCharWidth(), kLines * fontMetrics().height()};
}

QSize DockRoom::minimumSizeHint() const {
    if (!beside_.isEmpty()) return QFrame::minimumSizeHint();
    return {fontMetrics().averageCharWidth(), kFewestLines * fontMetrics().height()};
}

bool DockRoom::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget()) {
        if (event->type() == QEvent::Resize) FitWidth();
    } else if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        FollowGuests();
    }
    return false;
}

void DockRoom::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    updateGeometry();
    // The lists get their fonts after this event.
    QMetaObject::invokeMethod(this, &DockRoom::FitWidth, Qt::QueuedConnection);
}

}  // namespace vatro
