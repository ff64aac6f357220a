export { clock, HandClock, setFrameClock, type FrameClock } from './clock.js';
export { PickerElement } from './element.js';
export { loadedModule, startModule, type Module } from './module.js';
export * from './pickers.js';
