import { describe, expect, it } from 'vitest'
import { messageBytes, readMessage, type Body } from '@/stream/messages'

function hex(bytes: Uint8Array): string {
  return [...bytes].map((byte) => byte.toString(16).padStart(2, '0')).join(' ')
}

function bytes(text: string): Uint8Array {
  return new Uint8Array(text.split(' ').map((byte) => parseInt(byte, 16)))
}

describe('messages to the gateway, byte by byte', () => {
  it.each<[string, Body, string]>([
    [
      'login',
      {
        $case: 'login',
        value: { protocolVersion: 1, userId: 7, sessionId: 'ab', padCode: 'VM', businessType: 1 },
      },
      '0a 0e 08 01 10 07 1a 02 61 62 22 02 56 4d 28 01',
    ],
    [
      'a user id of -1',
      {
        $case: 'login',
        value: { protocolVersion: 1, userId: -1, sessionId: '', padCode: '', businessType: 0 },
      },
      '0a 0d 08 01 10 ff ff ff ff ff ff ff ff ff 01',
    ],
    [
      'automatic quality',
      { $case: 'videoLevelChoice', value: { choice: { $case: 'index', value: 0 } } },
      '1a 02 08 00',
    ],
    ['full video', { $case: 'screenCast', value: { mode: 3 } }, '22 02 08 03'],
    ['no video', { $case: 'screenCast', value: { mode: 0 } }, '22 00'],
    ['a key frame request', { $case: 'keyframeRequest', value: {} }, '2a 00'],
    ['an acknowledgement', { $case: 'frameAck', value: { frameId: 300 } }, '32 03 08 ac 02'],
    [
      'two fingers down',
      {
        $case: 'touch',
        value: {
          action: 0,
          x: [1, 300],
          y: [2, 3],
          pressure: [0, 0],
          referenceWidth: 720,
          referenceHeight: 1280,
        },
      },
      '3a 19 12 03 02 d8 04 1a 02 04 06 22 08 00 00 00 00 00 00 00 00 28 d0 05 30 80 0a',
    ],
    [
      'the last finger up',
      {
        $case: 'touch',
        value: { action: 1, x: [-1], y: [-1], pressure: [], referenceWidth: 0, referenceHeight: 0 },
      },
      '3a 08 08 01 12 01 01 1a 01 01',
    ],
    [
      'a click on the home key',
      { $case: 'key', value: { action: 3, code: 172, shift: false } },
      '42 05 08 03 10 ac 01',
    ],
    [
      'a key with Shift',
      { $case: 'key', value: { action: 1, code: 30, shift: true } },
      '42 06 08 01 10 1e 18 01',
    ],
    ['text', { $case: 'text', value: { text: 'ä' } }, '4a 04 0a 02 c3 a4'],
    ['a ping', { $case: 'ping', value: { id: 1, sentUs: 5_000_000 } }, 'c2 02 07 08 01 10 c0 96 b1 02'],
  ])('writes %s', (_what, body, expected) => {
    expect(hex(messageBytes(body))).toBe(expected)
  })
})

describe('messages from the gateway, byte by byte', () => {
  it('reads a sign-in', () => {
    expect(readMessage(bytes('a2 01 08 18 d0 05 20 80 0a 28 01'))).toEqual({
      $case: 'loginResult',
      value: { code: 0, reason: '', screenWidth: 720, screenHeight: 1280, rotation: 1 },
    })
  })

  it('reads a picture', () => {
    expect(readMessage(bytes('aa 01 12 08 02 10 80 e1 eb 17 18 01 22 02 aa bb 28 d0 05 30 80 0a'))).toEqual({
      $case: 'videoFrame',
      value: {
        frameId: 2,
        captureUs: 50_000_000,
        keyFrame: true,
        data: bytes('aa bb'),
        width: 720,
        height: 1280,
      },
    })
  })

  it('reads a rotation, an end and a pong', () => {
    expect(readMessage(bytes('ba 01 02 08 03'))).toEqual({ $case: 'screenRotation', value: { rotation: 3 } })
    expect(readMessage(bytes('e2 01 05 08 01 12 01 78'))).toEqual({
      $case: 'sessionEnd',
      value: { code: 1, reason: 'x' },
    })
    expect(readMessage(bytes('ca 02 06 08 01 10 02 18 03'))).toEqual({
      $case: 'pong',
      value: { id: 1, pingSentUs: 2, repliedUs: 3 },
    })
  })

  it('skips fields and kinds that it does not know', () => {
    expect(readMessage(bytes('ba 01 06 08 01 a2 06 01 78'))).toEqual({
      $case: 'screenRotation',
      value: { rotation: 1 },
    })
    expect(readMessage(bytes('92 03 02 08 01'))).toBeUndefined()
  })

  it('refuses what is no message', () => {
    expect(() => readMessage(bytes('aa 01 7f 08'))).toThrow()
    expect(() => readMessage(bytes('ff ff ff ff ff ff ff ff ff ff ff'))).toThrow()
  })
})
