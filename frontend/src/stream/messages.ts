import { LoginResult_Code, ScreenCast_Mode, SessionEnd_Code, StreamMessage } from './wire/stream'

// One message of the stream protocol: its kind and its fields.
export type Body = NonNullable<StreamMessage['body']>

export const LOGIN_CODE = {
  ok: LoginResult_Code.OK,
  unknownSession: LoginResult_Code.UNKNOWN_SESSION,
  expired: LoginResult_Code.EXPIRED,
  unsupportedVersion: LoginResult_Code.UNSUPPORTED_VERSION,
} as const

export const SESSION_END_CODE = {
  closed: SessionEnd_Code.CLOSED,
  expired: SessionEnd_Code.EXPIRED,
  shutdown: SessionEnd_Code.SHUTDOWN,
} as const

export const CAST = { paused: ScreenCast_Mode.PAUSED, full: ScreenCast_Mode.FULL } as const

// The bytes of one binary WebSocket message.
export function messageBytes(body: Body): Uint8Array<ArrayBuffer> {
  return StreamMessage.encode({ body }).finish() as Uint8Array<ArrayBuffer>
}

// Throws when the bytes are no message. Undefined for a kind that this page does not know.
export function readMessage(bytes: Uint8Array): Body | undefined {
  return StreamMessage.decode(bytes).body
}
