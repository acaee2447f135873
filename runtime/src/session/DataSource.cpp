#include "swplay/DataSource.h"

DataSource::~DataSource() = default;
