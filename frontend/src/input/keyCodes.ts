// Linux input event codes by the place of the key on the keyboard (KeyboardEvent.code).
const LETTERS = 'QWERTYUIOP____ASDFGHJKL_____ZXCVBNM'
const FIRST_LETTER_CODE = 16

const NAMED: Record<string, number> = {
  Escape: 1,
  Digit1: 2,
  Digit2: 3,
  Digit3: 4,
  Digit4: 5,
  Digit5: 6,
  Digit6: 7,
  Digit7: 8,
  Digit8: 9,
  Digit9: 10,
  Digit0: 11,
  Minus: 12,
  Equal: 13,
  Backspace: 14,
  Tab: 15,
  BracketLeft: 26,
  BracketRight: 27,
  Enter: 28,
  ControlLeft: 29,
  Semicolon: 39,
  Quote: 40,
  Backquote: 41,
  ShiftLeft: 42,
  Backslash: 43,
  Comma: 51,
  Period: 52,
  Slash: 53,
  ShiftRight: 54,
  NumpadMultiply: 55,
  AltLeft: 56,
  Space: 57,
  CapsLock: 58,
  F1: 59,
  F2: 60,
  F3: 61,
  F4: 62,
  F5: 63,
  F6: 64,
  F7: 65,
  F8: 66,
  F9: 67,
  F10: 68,
  NumLock: 69,
  ScrollLock: 70,
  Numpad7: 71,
  Numpad8: 72,
  Numpad9: 73,
  NumpadSubtract: 74,
  Numpad4: 75,
  Numpad5: 76,
  Numpad6: 77,
  NumpadAdd: 78,
  Numpad1: 79,
  Numpad2: 80,
  Numpad3: 81,
  Numpad0: 82,
  NumpadDecimal: 83,
  IntlBackslash: 86,
  F11: 87,
  F12: 88,
  NumpadEnter: 96,
  ControlRight: 97,
  NumpadDivide: 98,
  AltRight: 100,
  Home: 102,
  ArrowUp: 103,
  PageUp: 104,
  ArrowLeft: 105,
  ArrowRight: 106,
  End: 107,
  ArrowDown: 108,
  PageDown: 109,
  Insert: 110,
  Delete: 111,
  NumpadEqual: 117,
  Pause: 119,
  ContextMenu: 127,
}

const US_CHARACTERS: Record<string, string> = {
  Digit1: '1!',
  Digit2: '2@',
  Digit3: '3#',
  Digit4: '4$',
  Digit5: '5%',
  Digit6: '6^',
  Digit7: '7&',
  Digit8: '8*',
  Digit9: '9(',
  Digit0: '0)',
  Minus: '-_',
  Equal: '=+',
  BracketLeft: '[{',
  BracketRight: ']}',
  Semicolon: ';:',
  Quote: '\'"',
  Backquote: '`~',
  Backslash: '\\|',
  Comma: ',<',
  Period: '.>',
  Slash: '/?',
  Space: '  ',
}

function letterOf(code: string): string | undefined {
  return /^Key([A-Z])$/.exec(code)?.[1]
}

// The Linux code of a key, or undefined for one that the device does not know.
export function linuxKeyCode(code: string): number | undefined {
  const letter = letterOf(code)
  return letter ? FIRST_LETTER_CODE + LETTERS.indexOf(letter) : NAMED[code]
}

// Whether the device, which has a US keyboard, makes the same character of the key as the user's keyboard did, and
// then whether it must hold Shift for it. Keys that make no character count as the same.
export function sameOnDevice(code: string, key: string): { same: boolean; shift: boolean } {
  if ([...key].length !== 1 || code.startsWith('Numpad')) return { same: true, shift: false }
  const letter = letterOf(code)
  const [plain, shifted] = letter ? [letter.toLowerCase(), letter] : [...(US_CHARACTERS[code] ?? '')]
  return { same: key === plain || key === shifted, shift: key === shifted && key !== plain }
}
