<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>QuvProtocol</name>
    <message><source>In progress</source><translation>In corso</translation></message>
    <message><source>Searching for hardware errors</source><translation>Ricerca di errori hardware</translation></message>
    <message><source>Emergency button pressed</source><translation>Pulsante di emergenza premuto</translation></message>
    <message><source>Mixer offline</source><translation>Miscelatore fuori linea</translation></message>
    <message><source>Circuit %1: %2</source><translation>%2 nel circuito %1</translation></message>
    <message><source>open</source><translation>aperto</translation></message>
    <message><source>Nozzle at 20 °C</source><translation>Ugello a 20 °C, città</translation></message>
</context>
<context>
    <name>Elsewhere</name>
    <message><source>open</source><translation>spalancato</translation></message>
    <message><source>Door %1</source><translation>Porta %1</translation></message>
</context>
</TS>
