import { createApp } from 'vue';
import 'gxuipickers';
import Run from './Run.vue';

createApp(Run).mount('main');
