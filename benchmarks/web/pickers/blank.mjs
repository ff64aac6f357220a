// Nothing but a text: what every page costs.
import { stage } from './asked.mjs';

stage.textContent = '0';
