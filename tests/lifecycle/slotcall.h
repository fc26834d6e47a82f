#pragma once

class QObject;

/**
 * Calls the slot @p index of the meta-object of @p receiver with arguments that make it do
 * something. A slot with a parameter of a type that nobody thought of ends the test program.
 */
void callSlot(QObject *receiver, int index);
