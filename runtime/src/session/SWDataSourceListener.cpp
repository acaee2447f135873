#include "swplay/SWDataSourceListener.h"

SWDataSourceListener::SWDataSourceListener() = default;

SWDataSourceListener::~SWDataSourceListener() = default;

void SWDataSourceListener::onConnected()
{ }

void SWDataSourceListener::onDisconnected(int /*reason*/)
{ }

void SWDataSourceListener::onReconnecting(int /*attempt*/)
{ }

void SWDataSourceListener::onScreenRotation(int /*rotation*/)
{ }

void SWDataSourceListener::onSensorRequest(int /*inputType*/, int /*state*/, int /*width*/, int /*height*/)
{ }

void SWDataSourceListener::onSensorRequest(int /*inputType*/, int /*state*/)
{ }

void SWDataSourceListener::onStreamInfo(const char * /*info*/)
{ }

void SWDataSourceListener::onCopyFromRemote(const char * /*text*/, int /*length*/)
{ }

void SWDataSourceListener::onRecvKeyboardType(int /*type*/)
{ }

void SWDataSourceListener::onControlGrant(int /*state*/)
{ }
