#pragma once

// Receives the events of one SWDataSource. Every callback runs on a runtime thread, one at a time per data
// source, and must return soon. Text arguments are valid during the call only. The listener is owned by the
// caller and must outlive its data source's stop().
class SWDataSourceListener
{
public:
    SWDataSourceListener();
    SWDataSourceListener(const SWDataSourceListener &) = delete;
    SWDataSourceListener &operator=(const SWDataSourceListener &) = delete;
    virtual ~SWDataSourceListener();

    // Signed in; also after a reconnection.
    virtual void onConnected();
    // The session ended and will not be tried again. `reason`: a SWDisconnectReason value.
    virtual void onDisconnected(int reason);
    // The connection was lost or not reached, and is tried again now. `attempt` counts from 1.
    virtual void onReconnecting(int attempt);
    // The device's screen was turned: 0 to 3 quarter turns, odd = landscape.
    virtual void onScreenRotation(int rotation);
    // The device asks for a sensor (199 and 212: camera): `state` 0 = stop, otherwise start; size in pixels.
    virtual void onSensorRequest(int inputType, int state, int width, int height);
    // The same, where the device names no size.
    virtual void onSensorRequest(int inputType, int state);
    // About once a second: a JSON object, among others "delayTime" (capture to decoded, milliseconds).
    virtual void onStreamInfo(const char *info);
    // The device copied text: `length` bytes of UTF-8, zero-terminated.
    virtual void onCopyFromRemote(const char *text, int length);
    // The device's on-screen keyboard changed.
    virtual void onRecvKeyboardType(int type);
    // The right to control the device changed: 0 taken, 1 given.
    virtual void onControlGrant(int state);
};

// Values of SWDataSourceListener::onDisconnected.
enum SWDisconnectReason {
    SWDisconnectClosed = 0, // the service ended the session
    SWDisconnectRefused = 1, // the session is unknown to the gateway
    SWDisconnectExpired = 2, // the device's time is over
    SWDisconnectUnsupported = 3, // the gateway speaks another protocol version
    SWDisconnectBadParameters = 4, // address, port or session id missing or malformed
    SWDisconnectProtocolError = 5, // the gateway sent something malformed or too large
};
