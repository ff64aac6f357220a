import { useState } from 'react';
import { createRoot } from 'react-dom/client';
import 'gxuipickers';
import type {} from 'gxuipickers/react';

function Run() {
    const [metres, setMetres] = useState(5300);
    const [unit, setUnit] = useState<'metric' | 'imperial'>('metric');
    return (
        <>
            <h1>A run</h1>
            <gx-distance-picker
                aria-label="Distance"
                value={metres}
                unit={unit}
                fractionDigits={2}
                onInput={(event) => setMetres(event.currentTarget.value)}
            />
            <output>{metres} m</output>
            <button onClick={() => setMetres(10_000)}>Ten kilometres</button>
            <button onClick={() => setUnit(unit === 'metric' ? 'imperial' : 'metric')}>{unit}</button>
        </>
    );
}

createRoot(document.querySelector('main')!).render(<Run />);
