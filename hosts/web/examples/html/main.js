import 'gxuipickers';

const form = document.querySelector('form');

function show() {
    const { distance, duration } = Object.fromEntries(new FormData(form));
    form.querySelector('output').value = `${distance} m in ${duration / 60_000} min`;
}

form.addEventListener('change', show);
form.addEventListener('reset', () => setTimeout(show)); // Once everything has been reset.
