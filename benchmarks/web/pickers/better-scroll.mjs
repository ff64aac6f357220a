import BScroll from '@better-scroll/core';
import Wheel from '@better-scroll/wheel';
import './better-scroll.css';
import { columns, first, report, stage, titles } from './asked.mjs';

BScroll.use(Wheel);
stage.className = 'wheels';
const items = titles()
    .map((title) => `<li class="wheel-item">${title}</li>`)
    .join('');
stage.innerHTML = `<div class="wheel"><ul class="wheel-scroll">${items}</ul></div>`.repeat(columns);
[...stage.children].forEach((node, column) => {
    const wheel = new BScroll(node, {
        wheel: { selectedIndex: first, wheelWrapperClass: 'wheel-scroll', wheelItemClass: 'wheel-item' },
        probeType: 3,
    });
    wheel.on('scrollEnd', () => report(column, wheel.getSelectedIndex()));
});
