#pragma once

// The codes by which auxiliary keys, their manager and the video view understand each other. The values are
// part of the contract between them.
namespace keymap {

// The kinds of auxiliary keys.
enum KeyType : int {
    ClickKey = 0,
    WalkingKey = 1,
    CrosshairKey = 2,
};

// What an auxiliary key's finger does; the same values as the touch actions of the video view.
enum KeyAction : int {
    Press = 0,
    Release = 1,
    Move = 2,
};

} // namespace keymap
