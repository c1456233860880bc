#include "kvopt/platform/message_map.h"

namespace kvopt {

namespace {

template <class Map, class Key>
const MessageMap::Handler* FindIn(const Map& map, const Key& key) {
    const auto found = map.find(key);
    return found == map.end() ? nullptr : &found->second;
}

}  // namespace

void MessageMap::On(Notification what, int control, Handler handler) {
    controls_[{what, control}] = std::move(handler);
}

void MessageMap::OnCommand(int command, Handler handler) {
    commands_[command] = std::move(handler);
}

void MessageMap::OnClicked(int control, Handler handler) {
    On(Notification::Clicked, control, std::move(handler));
}

void MessageMap::OnDoubleClicked(int control, Handler handler) {
    On(Notification::DoubleClicked, control, std::move(handler));
}

void MessageMap::OnChanged(int control, Handler handler) {
    On(Notification::Changed, control, std::move(handler));
}

void MessageMap::OnSelectionChanged(int control, Handler handler) {
    On(Notification::SelectionChanged, control, std::move(handler));
}

const MessageMap::Handler* MessageMap::Find(Notification what, int control) const {
    return FindIn(controls_, std::pair(what, control));
}

const MessageMap::Handler* MessageMap::FindCommand(int command) const {
    return FindIn(commands_, command);
}

}  // namespace kvopt
