#include "inodeclient.h"

namespace Lum {

INodeClient::INodeClient(QWidget *parent)
    : QFrame(parent)
{}

INodeClient::~INodeClient() = default;

} // namespace Lum
